// The feature and value numbers of the products that the tables describe, beyond those that the
// data model itself names.
#pragma once

#include "datamodelids.h"

namespace o7 {

using DataModelIds::tagFeatureEnum;
using DataModelIds::tagValueEnum;

// clang-format off
// Printing
inline constexpr tagFeatureEnum kJobType             {3001};
inline constexpr tagFeatureEnum kPaperSize           {3002};
inline constexpr tagFeatureEnum kPaperTray           {3003};
inline constexpr tagFeatureEnum kPaperType           {3004};
inline constexpr tagFeatureEnum kSides               {3005};
inline constexpr tagFeatureEnum kOrientation         {3006};
inline constexpr tagFeatureEnum kCopies              {3007};
inline constexpr tagFeatureEnum kCollate             {3008};
inline constexpr tagFeatureEnum kColourMode          {3009};
inline constexpr tagFeatureEnum kPrintQuality        {3010};
inline constexpr tagFeatureEnum kTonerSaving         {3011};
inline constexpr tagFeatureEnum kStaple              {3012};
inline constexpr tagFeatureEnum kPunch               {3013};
inline constexpr tagFeatureEnum kFold                {3014};
inline constexpr tagFeatureEnum kOutputBin           {3015};
inline constexpr tagFeatureEnum kPagesPerSheet       {3016};
inline constexpr tagFeatureEnum kPageBorders         {3017};
inline constexpr tagFeatureEnum kBooklet             {3018};
inline constexpr tagFeatureEnum kResolution          {3019};
inline constexpr tagFeatureEnum kOptimiseFor         {3020};
inline constexpr tagFeatureEnum kSkipBlankPages      {3021};
inline constexpr tagFeatureEnum kBannerSheet         {3022};
inline constexpr tagFeatureEnum kWatermark           {3023};
inline constexpr tagFeatureEnum kWatermarkFirstOnly  {3024};
inline constexpr tagFeatureEnum kCovers              {3025};
inline constexpr tagFeatureEnum kCoverTray           {3026};
inline constexpr tagFeatureEnum kMirrorImage         {3027};
inline constexpr tagFeatureEnum kScaling             {3028};
inline constexpr tagFeatureEnum kNotifyWhenDone      {3029};
inline constexpr tagFeatureEnum kAccounting          {3030};
inline constexpr tagFeatureEnum kEdgeToEdge          {3031};

// Device settings
inline constexpr tagFeatureEnum kInstalledFinisher   {3040};
inline constexpr tagFeatureEnum kInstalledTrays      {3041};
inline constexpr tagFeatureEnum kInstalledPunchKit   {3042};
inline constexpr tagFeatureEnum kInstalledHardDisk   {3043};
inline constexpr tagFeatureEnum kInstalledFolder     {3044};
inline constexpr tagFeatureEnum kBidirectional       {3045};
inline constexpr tagFeatureEnum kInstalledDuplexUnit {3046};
inline constexpr tagFeatureEnum kMeasurementUnits    {3047};

// Values
inline constexpr tagValueEnum kPaperA3             {5110};
inline constexpr tagValueEnum kPaperA4             {5111};
inline constexpr tagValueEnum kPaperA5             {5112};
inline constexpr tagValueEnum kPaperLetter         {5113};
inline constexpr tagValueEnum kPaperLegal          {5114};
inline constexpr tagValueEnum kPaperTabloid        {5115};
inline constexpr tagValueEnum kPaperEnvelopeDL     {5116};
inline constexpr tagValueEnum kPaperEnvelopeC5     {5117};
inline constexpr tagValueEnum kJobTrackingOff      {8203};
inline constexpr tagValueEnum kApplyQuietly        {8690};
// clang-format on

} // namespace o7
