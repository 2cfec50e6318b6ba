// The module's activation context: what it selects, what is left of an error, and its end.

#include "isolationaware.h"

#include "testpage.h"
#include "uicheckboxcontrol.h"
#include "uicomboboxcontrol.h"
#include "uiresourceids.h"
#include "uitooltips.h"

#include <gtest/gtest.h>
#include <shlwapi.h>

#include <array>
#include <cstring>
#include <string>

namespace {

using o7::test::TestPage;

/// The main version of the library that a window's class comes from.
DWORD classVersion(HWND window)
{
    HMODULE library = nullptr;
    ::GetModuleHandleExW(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        reinterpret_cast<LPCWSTR>(::GetClassLongPtrW(window, GCLP_WNDPROC)), &library);
    const auto getVersion = reinterpret_cast<DLLGETVERSIONPROC>(
        reinterpret_cast<void*>(::GetProcAddress(library, "DllGetVersion")));
    DLLVERSIONINFO info{};
    info.cbSize = sizeof info;
    return getVersion != nullptr && getVersion(&info) == S_OK ? info.dwMajorVersion : 0;
}

/// Something that looks like the handle of an activation context and is none.
HANDLE brokenContext()
{
    static std::array<char, 512> nothing{};
    return nothing.data();
}

std::string s_debugOutput;

LONG CALLBACK readDebugOutput(EXCEPTION_POINTERS* exception)
{
    constexpr DWORD kNarrow = 0x40010006;
    const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
    if (record.ExceptionCode == kNarrow) {
        s_debugOutput += reinterpret_cast<const char*>(record.ExceptionInformation[1]);
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

TEST(IsolationAware, ControlsComeFromVersionSixWithoutAManifestOfTheHost)
{
    TestPage page;
    const HWND plain = ::CreateWindowExW(0, L"BUTTON", L"", WS_CHILD, 0, 0, 9, 9, page.page(),
                                         nullptr, nullptr, nullptr);
    EXPECT_NE(6U, classVersion(plain)) << "this host must not select it itself";

    const UICheckBoxControl check(page.page(), 1, page.services(), page.font(), {}, {50, 10},
                                  false);
    const UIComboBoxControl combo(page.page(), 2, page.services(), page.font(), {}, {50, 14});
    const UIToolTips tips(page.page());
    EXPECT_EQ(6U, classVersion(check.getHwnd()));
    EXPECT_EQ(6U, classVersion(combo.getHwnd()));
    EXPECT_EQ(6U, classVersion(tips.getHwnd()));
}

TEST(IsolationAware, CreatesAndDestroysPages)
{
    PROPSHEETPAGEW page{};
    page.dwSize = sizeof page;
    page.hInstance = IsolationAware::moduleInstance();
    page.pszTemplate = MAKEINTRESOURCEW(O7_DIALOG_EMPTY_PAGE);
    const HPROPSHEETPAGE handle = IsolationAware::createPropertySheetPage(page);
    ASSERT_NE(nullptr, handle);
    EXPECT_TRUE(IsolationAware::destroyPropertySheetPage(handle));
}

TEST(IsolationAware, KeepsTheErrorOfAFailedCreation)
{
    ::SetLastError(ERROR_SUCCESS);
    EXPECT_EQ(nullptr, IsolationAware::createWindow(0, L"no such class", WS_POPUP, {}, nullptr, 0));
    EXPECT_EQ(DWORD{ERROR_CANNOT_FIND_WND_CLASS}, ::GetLastError());
}

TEST(IsolationAware, MakesNoCallWithoutAContext)
{
    const o7::test::WindowWatch watch;
    {
        const IsolationAware::CallerContext caller(brokenContext());
        EXPECT_FALSE(IsolationAware::ActivationScope().isActive());
        EXPECT_EQ(nullptr, IsolationAware::createWindow(0, L"STATIC", WS_POPUP, {}, nullptr, 0));
        EXPECT_EQ(-1, IsolationAware::propertySheet({}));
        EXPECT_EQ(nullptr, IsolationAware::createPropertySheetPage({}));
        for (const HANDLE none : {HANDLE{nullptr}, INVALID_HANDLE_VALUE}) {
            const IsolationAware::CallerContext same(none);
            EXPECT_FALSE(IsolationAware::ActivationScope().isActive());
        }
    }
    EXPECT_TRUE(watch.created.empty());
    EXPECT_TRUE(IsolationAware::ActivationScope().isActive());
}

TEST(IsolationAware, UsesTheCallersOwnContext)
{
    ACTCTXW description{};
    description.cbSize = sizeof description;
    description.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    description.hModule = IsolationAware::moduleInstance();
    description.lpResourceName = MAKEINTRESOURCEW(O7_MANIFEST);
    const o7::UniqueActivationContext own(::CreateActCtxW(&description));
    const IsolationAware::CallerContext caller(own.get());
    const IsolationAware::ActivationScope scope;
    HANDLE current = nullptr;
    ASSERT_TRUE(::GetCurrentActCtx(&current));
    EXPECT_EQ(own.get(), current);
    ::ReleaseActCtx(current);
}

TEST(IsolationAware, SaysSoWhenItIsUsedAfterTheCleanUpButWorks)
{
    void* const handler = ::AddVectoredExceptionHandler(1, readDebugOutput);
    const auto outputOfACall = [] {
        s_debugOutput.clear();
        const o7::UniqueWindow window(
            IsolationAware::createWindow(0, L"STATIC", WS_POPUP, {}, nullptr, 0));
        EXPECT_TRUE(window);
        EXPECT_EQ(6U, classVersion(window.get()));
        return s_debugOutput;
    };
    {
        const IsolationAware::Session outer;
        {
            const IsolationAware::Session inner;
        }
        EXPECT_EQ("", outputOfACall());
    }
    EXPECT_EQ("IsolationAware function called after IsolationAwareCleanup\n", outputOfACall());
    {
        const IsolationAware::Session again;
        EXPECT_EQ("", outputOfACall());
    }
    const IsolationAware::Session leftAsFound;
    ::RemoveVectoredExceptionHandler(handler);
}

} // namespace
