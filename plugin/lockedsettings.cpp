#include "lockedsettings.h"

#include "idatamodel.h"

namespace o7 {
namespace {

/// "You may look at these settings but not change them."
constexpr unsigned kNoPermission = 60299;

} // namespace

void lockSettings(IDataModel& model)
{
    model.LockSettings(kNoPermission);
}

} // namespace o7
