#pragma once

class IDataModel;

namespace o7 {

/// Lets every setting of a model be looked at but not be changed, for users without the permission,
/// and says why. For the rest of the model's life.
void lockSettings(IDataModel& model);

} // namespace o7
