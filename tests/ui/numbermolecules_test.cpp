// The molecules for numbers and typed texts, by real input on a real sheet.

#include <windows.h>

#include <commctrl.h>
#include <prsht.h>

#include <functional>
#include <string>

#include "datamodelfactory.h"
#include "featureservices.h"
#include "idledriver.h"
#include "input.h"
#include "numberfieldpage.h"
#include "sheetrig.h"
#include "uidata.h"
#include "uifixture.h"
#include "uiservices.h"
#include "uivaluewriter.h"
#include "windowtext.h"

namespace o7::test {
namespace {

