#pragma once

class FeatureServices;
struct UIRegionalSettings;

namespace o7 {

/// Whether lengths are shown in millimetres: what the person has chosen for this printer, else what
/// the regional settings say.
bool showsMillimetres(FeatureServices& featureServices, const UIRegionalSettings& regional);

} // namespace o7
