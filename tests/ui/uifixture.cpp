#include "uifixture.h"

#include <windows.h>

#include <prsht.h>

#include <vector>

#include "booleanfeatureref.h"
#include "optionfeatureref.h"
#include "windowtext.h"

namespace o7::test {

namespace {

struct Search
{
    const wchar_t* className;
    const wchar_t* text;
    HWND found;
};

BOOL CALLBACK matchControl(HWND window, LPARAM parameter)
{
    Search& search = *reinterpret_cast<Search*>(parameter);
    wchar_t name[32] = L"";
    GetClassNameW(window, name, 32);
    const bool isFrame = _wcsicmp(name, L"BUTTON") == 0 &&
                         (GetWindowLongW(window, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
    if (!isFrame && IsWindowVisible(window) && _wcsicmp(name, search.className) == 0 &&
        o7::withoutMnemonics(o7::windowText(window)) == search.text)
        search.found = window;
    return search.found == nullptr;
}

} // namespace

std::filesystem::path productsFolder()
{
    std::wstring program(32768, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
    return std::filesystem::path(program).parent_path() / L"products";
}

void UIFixture::SetUp()
{
    std::vector<CXString> errors;
    m_session = o7::ProductSession::open(productsFolder() / kProduct, CXString(L"en"), errors);
    std::string text;
    for (const CXString& error : errors)
        text += error.ToUtf8() + "\n";
    ASSERT_TRUE(m_session) << text;
}

bool UIFixture::boolean(DataModelIds::tagFeatureEnum feature)
{
    bool value = false;
    EXPECT_TRUE(model()
                    .GetFullListOfFeatures()
                    .GetBooleanFeature(FeatureId(feature))
                    .GetValue(value, FeatureRef::kAssertIfUnsupported));
    return value;
}

int UIFixture::option(DataModelIds::tagFeatureEnum feature)
{
    return model()
        .GetFullListOfFeatures()
        .GetOptionFeature(FeatureId(feature))
        .GetValue()
        .GetValueEnum();
}

void UIFixture::setOption(DataModelIds::tagFeatureEnum feature, int value)
{
    ASSERT_TRUE(model()
                    .GetFullListOfFeatures()
                    .GetOptionFeature(FeatureId(feature))
                    .SetValue(ValueId(static_cast<DataModelIds::tagValueEnum>(value))));
}

HWND findControl(HWND dialog, const wchar_t* className, const wchar_t* text)
{
    Search search{className, text, nullptr};
    EnumChildWindows(dialog, &matchControl, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND findListBehind(HWND dialog, const wchar_t* label)
{
    const HWND found = findControl(dialog, L"STATIC", label);
    return found ? GetWindow(found, GW_HWNDNEXT) : nullptr;
}

HWND currentPage(HWND sheet)
{
    return reinterpret_cast<HWND>(SendMessageW(sheet, PSM_GETCURRENTPAGEHWND, 0, 0));
}

} // namespace o7::test
