// The module's activation context: what it selects, what is left of an error, and its end.

#include "isolationaware.h"

#include "importpatch.h"
#include "testpage.h"
#include "uicheckboxcontrol.h"
#include "uicomboboxcontrol.h"
#include "uiresourceids.h"
#include "uitooltips.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace {

using o7::test::TestPage;

/// Whether a window's class comes from version 6 of the library, which lives beside older ones.
bool isVersionSix(HWND window)
{
    HMODULE library = nullptr;
    ::GetModuleHandleExW(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        reinterpret_cast<LPCWSTR>(::GetClassLongPtrW(window, GCLP_WNDPROC)), &library);
    std::array<wchar_t, MAX_PATH> path{};
    ::GetModuleFileNameW(library, path.data(), static_cast<DWORD>(path.size()));
    ::CharLowerW(path.data());
    return std::wstring_view(path.data()).find(L"common-controls_6595b64144ccf1df_6.") !=
           std::wstring_view::npos;
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
    EXPECT_FALSE(isVersionSix(o7::test::makeStatic(page))) << "this host must not select it itself";

    const UICheckBoxControl check(page.page(), 1, page.services(), page.font(), {}, {50, 10},
                                  false);
    const UIComboBoxControl combo(page.page(), 2, page.services(), page.font(), {}, {50, 14});
    const UIToolTips tips(page.page());
    EXPECT_TRUE(isVersionSix(check.getHwnd()));
    EXPECT_TRUE(isVersionSix(combo.getHwnd()));
    EXPECT_TRUE(isVersionSix(tips.getHwnd()));
}

TEST(IsolationAware, KeepsTheErrorOfAFailedCreation)
{
    constexpr wchar_t kNoClass[] = L"no such class";
    ::CreateWindowExW(0, kNoClass, L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
    const DWORD expected = ::GetLastError();
    ::SetLastError(ERROR_SUCCESS);
    EXPECT_EQ(nullptr, IsolationAware::createWindow(0, kNoClass, WS_POPUP, {}, nullptr, 0));
    EXPECT_NE(DWORD{ERROR_SUCCESS}, expected);
    EXPECT_EQ(expected, ::GetLastError());
}

BOOL WINAPI refuseActivation(HANDLE, ULONG_PTR*)
{
    return FALSE;
}

TEST(IsolationAware, MakesNoCallWhenNothingCanBeActivated)
{
    const o7::test::WindowWatch watch;
    {
        const o7::test::ImportPatch patch("ActivateActCtx",
                                          reinterpret_cast<void*>(&refuseActivation));
        ASSERT_TRUE(patch.isInPlace());
        EXPECT_FALSE(IsolationAware::ActivationScope().isActive());
        EXPECT_EQ(nullptr, IsolationAware::createWindow(0, L"STATIC", WS_POPUP, {}, nullptr, 0));
        EXPECT_EQ(-1, IsolationAware::propertySheet({}));
        EXPECT_EQ(nullptr, IsolationAware::createPropertySheetPage({}));
        EXPECT_FALSE(IsolationAware::destroyPropertySheetPage(nullptr));
    }
    EXPECT_TRUE(watch.created.empty());
    EXPECT_TRUE(IsolationAware::ActivationScope().isActive());
}

HANDLE currentContext()
{
    const IsolationAware::ActivationScope scope;
    HANDLE current = nullptr;
    ::GetCurrentActCtx(&current);
    ::ReleaseActCtx(current);
    return current;
}

TEST(IsolationAware, UsesTheCallersOwnContext)
{
    ACTCTXW description{};
    description.cbSize = sizeof description;
    description.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    description.hModule = IsolationAware::moduleInstance();
    description.lpResourceName = MAKEINTRESOURCEW(O7_MANIFEST);
    const o7::UniqueActivationContext own(::CreateActCtxW(&description));
    const HANDLE modules = currentContext();
    {
        const IsolationAware::CallerContext caller(own.get());
        EXPECT_EQ(own.get(), currentContext());
        for (const HANDLE none : {HANDLE{nullptr}, INVALID_HANDLE_VALUE}) {
            const IsolationAware::CallerContext nested(none);
            EXPECT_EQ(modules, currentContext()) << "of nobody else";
        }
        EXPECT_EQ(own.get(), currentContext());
    }
    EXPECT_NE(own.get(), modules);
    EXPECT_EQ(modules, currentContext());
}

/// While one thread closes its sheet, others open theirs: nobody finds the context gone.
TEST(IsolationAware, SessionsOfSeveralThreadsDoNotDisturbEachOther)
{
    constexpr int kThreads = 4;
    constexpr int kRounds = 300;
    std::atomic<int> failures{0};
    std::vector<std::thread> threads;
    threads.reserve(kThreads);
    for (int thread = 0; thread < kThreads; ++thread) {
        threads.emplace_back([&] {
            for (int round = 0; round < kRounds; ++round) {
                const IsolationAware::Session session;
                const IsolationAware::ActivationScope scope;
                PROPSHEETPAGEW page{};
                page.dwSize = sizeof page;
                page.pszTemplate = MAKEINTRESOURCEW(O7_DIALOG_EMPTY_PAGE);
                page.hInstance = IsolationAware::moduleInstance();
                const HPROPSHEETPAGE made = IsolationAware::createPropertySheetPage(page);
                if (!scope.isActive() || !made || !IsolationAware::destroyPropertySheetPage(made))
                    ++failures;
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(failures, 0);
    const IsolationAware::Session leftAsFound;
}

TEST(IsolationAware, SaysSoWhenItIsUsedAfterTheCleanUpButWorks)
{
    void* const handler = ::AddVectoredExceptionHandler(1, readDebugOutput);
    const auto outputOfACall = [] {
        s_debugOutput.clear();
        const o7::UniqueWindow window(
            IsolationAware::createWindow(0, L"STATIC", WS_POPUP, {}, nullptr, 0));
        EXPECT_TRUE(window);
        EXPECT_TRUE(isVersionSix(window.get()));
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
