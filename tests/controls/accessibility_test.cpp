// What screen readers are told: nothing before they ask, everything after, and nothing once the
// window is gone. The system's service is replaced where this platform has none.

#include "uibitmapbuttoncontrol.h"
#include "uicomboboxcontrol.h"
#include "uihyperlinktextcontrol.h"
#include "uiimagecontrol.h"
#include "uiinfobuttoncontrol.h"
#include "uilistboxcontrol.h"
#include "uitextcontrol.h"

#include "accessibility.h"
#include "cxstring.h"
#include "importpatch.h"
#include "itemrecord.h"
#include "operatingsystem.h"
#include "testpage.h"

#include <gtest/gtest.h>
#include <oleacc.h>

#include <array>
#include <map>
#include <memory>
#include <string>

namespace {

using o7::test::TestPage;

constexpr int kId = 80;

/// Keeps the annotations of the windows.
class FakeProperties : public IAccPropServices
{
public:
    struct Annotation
    {
        std::wstring name;
        LONG role = 0;
        LONG state = 0;
        std::map<DWORD, LONG> parts; ///< their states
    };
    std::map<HWND, Annotation> annotations;
    int created = 0;
    ULONG references = 0;

    HRESULT WINAPI QueryInterface(REFIID /*id*/, void** object) override
    {
        ++references;
        *object = this;
        return S_OK;
    }
    ULONG WINAPI AddRef() override { return ++references; }
    ULONG WINAPI Release() override { return --references; }

    HRESULT WINAPI SetHwndProp(HWND window, DWORD object, DWORD child, MSAAPROPID id,
                               VARIANT value) override
    {
        EXPECT_EQ(static_cast<DWORD>(OBJID_CLIENT), object);
        EXPECT_EQ(VT_I4, value.vt);
        Annotation& annotation = annotations[window];
        if (child != CHILDID_SELF) {
            annotation.parts[child] = value.lVal;
            return S_OK;
        }
        (::IsEqualGUID(id, PROPID_ACC_ROLE) != FALSE ? annotation.role : annotation.state) =
            value.lVal;
        return S_OK;
    }
    HRESULT WINAPI SetHwndPropStr(HWND window, DWORD /*object*/, DWORD /*child*/, MSAAPROPID id,
                                  LPCWSTR text) override
    {
        EXPECT_NE(FALSE, ::IsEqualGUID(id, PROPID_ACC_NAME));
        annotations[window].name = text;
        return S_OK;
    }
    HRESULT WINAPI ClearHwndProps(HWND window, DWORD /*object*/, DWORD child,
                                  const MSAAPROPID* /*ids*/, int count) override
    {
        if (child != CHILDID_SELF) {
            annotations[window].parts.erase(child);
            return S_OK;
        }
        EXPECT_EQ(3, count);
        EXPECT_NE(FALSE, ::IsWindow(window)) << "cleared while the window can be named";
        EXPECT_TRUE(annotations[window].parts.empty());
        annotations.erase(window);
        return S_OK;
    }

    // Not used.
    // clang-format off
    HRESULT WINAPI SetPropValue(const BYTE*, DWORD, MSAAPROPID, VARIANT) override { return E_NOTIMPL; }
    HRESULT WINAPI SetPropServer(const BYTE*, DWORD, const MSAAPROPID*, int, IAccPropServer*, AnnoScope) override { return E_NOTIMPL; }
    HRESULT WINAPI ClearProps(const BYTE*, DWORD, const MSAAPROPID*, int) override { return E_NOTIMPL; }
    HRESULT WINAPI SetHwndPropServer(HWND, DWORD, DWORD, const MSAAPROPID*, int, IAccPropServer*, AnnoScope) override { return E_NOTIMPL; }
    HRESULT WINAPI ComposeHwndIdentityString(HWND, DWORD, DWORD, BYTE**, DWORD*) override { return E_NOTIMPL; }
    HRESULT WINAPI DecomposeHwndIdentityString(const BYTE*, DWORD, HWND*, DWORD*, DWORD*) override { return E_NOTIMPL; }
    HRESULT WINAPI SetHmenuProp(HMENU, DWORD, MSAAPROPID, VARIANT) override { return E_NOTIMPL; }
    HRESULT WINAPI SetHmenuPropStr(HMENU, DWORD, MSAAPROPID, LPCWSTR) override { return E_NOTIMPL; }
    HRESULT WINAPI SetHmenuPropServer(HMENU, DWORD, const MSAAPROPID*, int, IAccPropServer*, AnnoScope) override { return E_NOTIMPL; }
    HRESULT WINAPI ClearHmenuProps(HMENU, DWORD, const MSAAPROPID*, int) override { return E_NOTIMPL; }
    HRESULT WINAPI ComposeHmenuIdentityString(HMENU, DWORD, BYTE**, DWORD*) override { return E_NOTIMPL; }
    HRESULT WINAPI DecomposeHmenuIdentityString(const BYTE*, DWORD, HMENU*, DWORD*) override { return E_NOTIMPL; }
    // clang-format on
};

FakeProperties* s_service = nullptr; // null: there is none
int s_initialised = 0;

HRESULT WINAPI createInstance(REFCLSID /*type*/, IUnknown* /*outer*/, DWORD /*context*/, REFIID id,
                              void** object)
{
    if (s_service == nullptr) {
        return REGDB_E_CLASSNOTREG;
    }
    ++s_service->created;
    return s_service->QueryInterface(id, object);
}
HRESULT WINAPI initialise(void* /*reserved*/, DWORD /*model*/)
{
    ++s_initialised;
    return S_FALSE;
}
void WINAPI uninitialise()
{
    --s_initialised;
}

class AccessibilityTest : public testing::Test
{
protected:
    AccessibilityTest() { s_service = &m_service; }
    ~AccessibilityTest() override
    {
        s_service = nullptr;
        EXPECT_EQ(0, s_initialised) << "COM in balance";
        EXPECT_EQ(0U, m_service.references);
        EXPECT_TRUE(m_service.annotations.empty());
    }
    static void ask(const UIControl& control)
    {
        ::SendMessageW(control.getHwnd(), WM_GETOBJECT, 0, OBJID_CLIENT);
    }
    FakeProperties::Annotation& of(const UIControl& control)
    {
        return m_service.annotations[control.getHwnd()];
    }

    FakeProperties m_service;
    o7::test::ImportPatch m_create{"CoCreateInstance", reinterpret_cast<void*>(&createInstance)};
    o7::test::ImportPatch m_begin{"CoInitializeEx", reinterpret_cast<void*>(&initialise)};
    o7::test::ImportPatch m_end{"CoUninitialize", reinterpret_cast<void*>(&uninitialise)};
    TestPage m_page;
};

TEST_F(AccessibilityTest, TellsNothingBeforeItIsAskedAndEverythingAfter)
{
    ASSERT_TRUE(m_create.isInPlace() && m_begin.isInPlace() && m_end.isInPlace());
    UIBitmapButtonControl button(m_page.page(), kId, m_page.services(), m_page.font(), {0, 0},
                                 {20, 20}, 0, 0);
    UIHyperlinkTextControl link(m_page.page(), kId + 1, m_page.services(), m_page.font(), {0, 30},
                                {50, 10}, WS_TABSTOP);
    const UIImageControl image(m_page.page(), kId + 2, m_page.services(), m_page.font(), {0, 50},
                               {20, 20}, 0, true);
    UITextControl plain(m_page.page(), kId + 3, m_page.services(), m_page.font(), {0, 80}, {50, 10},
                        0, true, nullptr);
    button.setAccessibleName(L"Add a tray");
    plain.setAccessibleName(L"Copies");
    EXPECT_EQ(0, m_service.created);
    EXPECT_EQ(0, s_initialised);

    for (const UIControl* control :
         {static_cast<UIControl*>(&button), static_cast<UIControl*>(&link),
          static_cast<UIControl*>(&plain)}) {
        ask(*control);
        ask(*control);
    }
    ask(image);
    EXPECT_EQ(4, m_service.created) << "once for each";
    EXPECT_EQ(L"Add a tray", of(button).name);
    EXPECT_EQ(ROLE_SYSTEM_PUSHBUTTON, of(button).role);
    EXPECT_EQ(0, of(button).state) << "the system's own";
    EXPECT_EQ(L"Copies", of(plain).name);
    EXPECT_EQ(ROLE_SYSTEM_LINK, of(link).role);
    EXPECT_EQ(STATE_SYSTEM_LINKED | STATE_SYSTEM_FOCUSABLE, of(link).state);
    EXPECT_EQ(ROLE_SYSTEM_GRAPHIC, of(image).role);

    button.setAccessibleName(L"Add a tray or cassette");
    EXPECT_EQ(L"Add a tray or cassette", of(button).name);
    link.UIControl::setEnable(false);
    EXPECT_NE(0, of(link).state & STATE_SYSTEM_UNAVAILABLE);
    link.UIControl::setEnable(true);
    ::SetFocus(link.UIControl::getHwnd());
    EXPECT_NE(0, of(link).state & STATE_SYSTEM_FOCUSED);
}

TEST_F(AccessibilityTest, TakesItBackWhenTheParentGoesFirst)
{
    UIBitmapButtonControl button(m_page.page(), kId, m_page.services(), m_page.font(), {0, 0},
                                 {20, 20}, 0, 0);
    UITextControl plain(m_page.page(), kId + 3, m_page.services(), m_page.font(), {0, 80}, {50, 10},
                        0, true, nullptr);
    button.setAccessibleName(L"Add");
    plain.setAccessibleName(L"Copies");
    ask(button);
    ask(plain);
    EXPECT_EQ(2U, m_service.annotations.size());
    m_page.destroyWindows();
    EXPECT_TRUE(m_service.annotations.empty());
    plain.setAccessibleName(L"on a window that is gone");
}

TEST_F(AccessibilityTest, EntriesThatCannotBeChosenAreTold)
{
    UIComboBoxControl combo(m_page.page(), kId, m_page.services(), m_page.font(), {0, 0}, {50, 14});
    UIListBoxControl box(m_page.page(), kId + 1, m_page.services(), m_page.font(), {0, 30},
                         {50, 40}, 0, true);
    combo.UIControl::setAccessibleName(L"Paper");
    box.UIControl::setAccessibleName(L"Paper");
    std::array<ItemRecord, 3> records{{{0, false}, {1, true}, {2, false}}};
    for (UIEntryListControl* list :
         {static_cast<UIEntryListControl*>(&combo), static_cast<UIEntryListControl*>(&box)}) {
        for (ItemRecord& record : records) {
            list->setItemData(list->addItem(L"entry"), &record);
        }
        records[1].unavailable = true;
        HWND entries = list->UIControl::getHwnd();
        if (list == &combo) {
            ::SendMessageW(entries, CB_SHOWDROPDOWN, TRUE, 0);
            COMBOBOXINFO info{};
            info.cbSize = sizeof info;
            ::GetComboBoxInfo(entries, &info);
            entries = info.hwndList;
        }
        ::SendMessageW(entries, WM_GETOBJECT, 0, OBJID_CLIENT);
        auto& parts = m_service.annotations[entries].parts;
        EXPECT_EQ(1U, parts.size());
        EXPECT_NE(0, parts[2] & STATE_SYSTEM_UNAVAILABLE);
        list->setItemUnavailable(true, 2);
        list->setItemUnavailable(false, 1);
        EXPECT_EQ(1U, parts.size());
        EXPECT_NE(0, parts[3] & STATE_SYSTEM_UNAVAILABLE);
        records[2].unavailable = false;
    }
}

TEST_F(AccessibilityTest, AMissingServiceIsSilent)
{
    s_service = nullptr;
    UITextControl plain(m_page.page(), kId, m_page.services(), m_page.font(), {0, 0}, {50, 10}, 0,
                        true, nullptr);
    plain.setAccessibleName(L"Copies");
    ask(plain);
    plain.setAccessibleName(L"Pages");
    UITextControl nowhere(nullptr, kId, m_page.services(), nullptr, {0, 0}, {5, 5}, 0, true,
                          nullptr);
    nowhere.setAccessibleName(L"no window");
    EXPECT_EQ(1, s_initialised);
}

TEST(Accessibility, TheSystemsOwnServiceIsAskedWithoutHarm)
{
    TestPage page;
    const SystemLibrary library = OperatingSystem::LoadSystemLibrary(L"oleacc.dll");
    const auto objectOf =
        library.function<decltype(&::AccessibleObjectFromWindow)>("AccessibleObjectFromWindow");
    ASSERT_NE(nullptr, objectOf);
    UIInfoButtonControl button(page.page(), kId, page.services(), {0, 0}, {20, 20}, nullptr);
    button.setMessage(UIInfoButtonControl::kInformation, L"Needs the finisher.", L"Stapling");
    const o7::ComScope com;
    Microsoft::WRL::ComPtr<IAccessible> object;
    ASSERT_EQ(S_OK, objectOf(button.getHwnd(), static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                             reinterpret_cast<void**>(object.GetAddressOf())));
    VARIANT self{};
    self.vt = VT_I4;
    BSTR name = nullptr;
    EXPECT_EQ(S_OK, object->get_accName(self, &name));
    EXPECT_EQ(L"Needs the finisher.", std::wstring(name != nullptr ? name : L""));
    ::SysFreeString(name);
}

} // namespace
