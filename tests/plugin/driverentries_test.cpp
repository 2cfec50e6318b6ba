// The plug-in as the print system meets it: a module loaded by its path, and its exports.

#include <windows.h>

#include <commctrl.h>
#include <compstui.h>
#include <prsht.h>

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "dlldelayloader.h"
#include "documentsettings.h"
#include "driverentries.h"
#include "eventid.h"
#include "idatamodel.h"
#include "printerddi.h"
#include "printerstandin.h"
#include "resourceguard.h"

namespace o7 {
namespace {

class DriverEntries : public testing::Test
{
protected:
    void SetUp() override
    {
        const std::wstring path = folderOfThisModule() + L"\\o7plugQK.dll";
        m_plugin = LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
        ASSERT_NE(m_plugin, nullptr) << GetLastError();
        m_header.cbSize = sizeof m_header;
        m_header.pszPrinterName = m_printerName;
    }

    void TearDown() override { FreeLibrary(m_plugin); }

    template <class Function> Function* entry(const char* name)
    {
        const auto address = GetProcAddress(m_plugin, name);
        EXPECT_NE(address, nullptr) << name;
        return reinterpret_cast<Function*>(reinterpret_cast<void*>(address));
    }

    LONG document(DWORD mode)
    {
        m_header.fMode = mode;
        return entry<decltype(DrvDocumentPropertySheets)>("DrvDocumentPropertySheets")(
            nullptr, reinterpret_cast<LPARAM>(&m_header));
    }

    DEVMODEW& devMode() { return *reinterpret_cast<DEVMODEW*>(m_buffer.data()); }

    HMODULE m_plugin = nullptr;
    wchar_t m_printerName[16] = L"Test printer";
    DocumentPropertyHeader m_header{};
    std::vector<std::uint8_t> m_buffer = std::vector<std::uint8_t>(kDevModeSize, 0xCD);
};

TEST_F(DriverEntries, TellTheSizeWithoutABuffer)
{
    m_header.pdmOut = &devMode();
    EXPECT_EQ(document(0), static_cast<LONG>(kDevModeSize));
    EXPECT_EQ(m_header.cbOut, kDevModeSize);
    m_header.pdmOut = nullptr;
    EXPECT_EQ(document(DM_OUT_BUFFER), static_cast<LONG>(kDevModeSize));
}

TEST_F(DriverEntries, RefuseWhatIsNoCall)
{
    auto* const documents = entry<decltype(DrvDocumentPropertySheets)>("DrvDocumentPropertySheets");
    auto* const devices = entry<decltype(DrvDevicePropertySheets)>("DrvDevicePropertySheets");
    EXPECT_LT(documents(nullptr, 0), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_PARAMETER));
    EXPECT_LT(devices(nullptr, reinterpret_cast<LPARAM>(&m_header)), 0);
    m_header.cbSize = 8; // of a system that did not know the fields behind
    EXPECT_LT(document(DM_OUT_BUFFER), 0);

    // Without the prompt's bit nobody wants to see a sheet, so the system is handed no page.
    m_header.cbSize = sizeof m_header;
    m_header.fMode = DM_OUT_BUFFER;
    PROPSHEETUI_INFO info{};
    info.cbSize = sizeof info;
    info.Reason = PROPSHEETUI_REASON_INIT;
    info.lParamInit = reinterpret_cast<LPARAM>(&m_header);
    EXPECT_LT(documents(&info, info.lParamInit), 0);
    info.lParamInit = 0;
    EXPECT_LT(documents(&info, 0), 0);
    EXPECT_LT(devices(&info, 0), 0);
    // What never began can be ended.
    info.Reason = PROPSHEETUI_REASON_DESTROY;
    EXPECT_GT(documents(&info, 0), 0);
}

TEST_F(DriverEntries, GiveDefaultsAndMergeInPlace)
{
    m_header.pdmOut = &devMode();
    // The print system states the public size of what lies in the buffer: no limit to believe.
    m_header.cbOut = sizeof(DEVMODEW);
    EXPECT_GT(document(DM_OUT_BUFFER), 0);
    EXPECT_EQ(m_header.cbOut, kDevModeSize);
    EXPECT_EQ(m_buffer.back(), 0);
    EXPECT_STREQ(devMode().dmDeviceName, m_printerName);
    EXPECT_EQ(devMode().dmPaperSize, DMPAPER_A4);
    EXPECT_EQ(devMode().dmOrientation, DMORIENT_PORTRAIT);

    // Applications hand the same buffer in and out.
    devMode().dmOrientation = DMORIENT_LANDSCAPE;
    m_header.pdmIn = &devMode();
    EXPECT_GT(document(DM_IN_BUFFER | DM_OUT_BUFFER), 0);
    EXPECT_EQ(devMode().dmOrientation, DMORIENT_LANDSCAPE);
    EXPECT_EQ(devMode().dmPaperSize, DMPAPER_A4);

    // Without the mode's bit the buffer handed in is no input.
    EXPECT_GT(document(DM_OUT_BUFFER), 0);
    EXPECT_EQ(devMode().dmOrientation, DMORIENT_PORTRAIT);
}

TEST_F(DriverEntries, ConvertDevModes)
{
    auto* const convert = entry<decltype(DrvConvertDevMode)>("DrvConvertDevMode");
    DWORD size = 0;
    EXPECT_FALSE(convert(m_printerName, nullptr, nullptr, &size, kDriverDefault));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INSUFFICIENT_BUFFER));
    EXPECT_EQ(size, kDevModeSize);
    EXPECT_TRUE(convert(m_printerName, nullptr, &devMode(), &size, kDriverDefault));
    EXPECT_EQ(devMode().dmPaperSize, DMPAPER_A4);

    DEVMODEW foreign{};
    foreign.dmSize = sizeof foreign;
    foreign.dmFields = DM_PAPERSIZE;
    foreign.dmPaperSize = DMPAPER_LETTER;
    EXPECT_TRUE(convert(m_printerName, &foreign, &devMode(), &size, kConvert));
    EXPECT_EQ(devMode().dmPaperSize, DMPAPER_LETTER);
    EXPECT_FALSE(convert(m_printerName, &foreign, &devMode(), &size, 99));
    EXPECT_FALSE(convert(m_printerName, nullptr, &devMode(), &size, kConvert));
    EXPECT_FALSE(convert(m_printerName, &foreign, &devMode(), nullptr, kConvert));
}

TEST_F(DriverEntries, AnswerCapabilitiesTwiceTheSame)
{
    auto* const capabilities = entry<decltype(DrvDeviceCapabilities)>("DrvDeviceCapabilities");
    const auto ask = [&](WORD capability, void* output) {
        return capabilities(nullptr, m_printerName, capability, output, nullptr);
    };
    const DWORD count = ask(DC_PAPERS, nullptr);
    ASSERT_GE(count, 8U);
    std::vector<WORD> papers(count);
    EXPECT_EQ(ask(DC_PAPERS, papers.data()), count);
    EXPECT_EQ(papers.front(), DMPAPER_A4);
    std::vector<wchar_t> names(std::size_t{64} * count, L'x');
    EXPECT_EQ(ask(DC_PAPERNAMES, names.data()), count);
    EXPECT_STREQ(names.data(), L"A4 (210 × 297 mm)");
    EXPECT_EQ(ask(DC_EXTRA, nullptr) + ask(DC_SIZE, nullptr), kDevModeSize);
    // The fields of the settings at hand, not of the defaults.
    m_header.pdmOut = &devMode();
    document(DM_OUT_BUFFER);
    EXPECT_EQ(capabilities(nullptr, m_printerName, DC_FIELDS, nullptr, &devMode()),
              devMode().dmFields);

    using PrinterEvent = BOOL WINAPI(LPWSTR, INT, DWORD, LPARAM);
    EXPECT_TRUE(entry<PrinterEvent>("DrvPrinterEvent")(m_printerName, 3, 1, 0));
}

/// The system's own property-sheet machinery with the plug-in's pages; a timer presses a button.
class DriverSheets : public DriverEntries
{
protected:
    static constexpr DWORD kShowSheet = DM_IN_BUFFER | DM_OUT_BUFFER | DM_IN_PROMPT;

    void SetUp() override
    {
        DriverEntries::SetUp();
        m_header.pdmIn = m_header.pdmOut = &devMode();
        ASSERT_GT(document(DM_OUT_BUFFER), 0);
        m_header.fMode = kShowSheet;
    }

    /// @return whether the sheet was seen with at least one page.
    bool openAndPress(const char* entryName, void* header, WPARAM button)
    {
        s_button = button;
        s_pages = 0;
        show(entryName, header, pressWhenShown);
        return s_pages > 0;
    }

    /// @param meanwhile  called again and again while the sheet is open.
    /// @return the sheet's result.
    DWORD show(const char* entryName, void* header, TIMERPROC meanwhile)
    {
        using CommonSheet = LONG WINAPI(HWND, PFNPROPSHEETUI, LPARAM, LPDWORD);
        const HMODULE system =
            LoadLibraryExW(L"compstui.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
        auto* const sheet = reinterpret_cast<CommonSheet*>(
            reinterpret_cast<void*>(GetProcAddress(system, "CommonPropertySheetUIW")));
        const UINT_PTR timer = SetTimer(nullptr, 0, 50, meanwhile);
        DWORD result = 0;
        sheet(nullptr, entry<decltype(DrvDocumentPropertySheets)>(entryName),
              reinterpret_cast<LPARAM>(header), &result);
        KillTimer(nullptr, timer);
        FreeLibrary(system);
        return result;
    }

private:
    static BOOL CALLBACK press(HWND window, LPARAM)
    {
        const auto tabs = reinterpret_cast<HWND>(SendMessageW(window, PSM_GETTABCONTROL, 0, 0));
        if (tabs == nullptr || !IsWindowVisible(window)) {
            return TRUE;
        }
        s_pages = SendMessageW(tabs, TCM_GETITEMCOUNT, 0, 0);
        PostMessageW(window, PSM_PRESSBUTTON, s_button, 0);
        return FALSE;
    }
    static void CALLBACK pressWhenShown(HWND, UINT, UINT_PTR, DWORD)
    {
        EnumThreadWindows(GetCurrentThreadId(), press, 0);
    }

    static inline WPARAM s_button = 0;
    static inline LRESULT s_pages = 0;
};

TEST_F(DriverSheets, WriteTheSettingsWithOkOnly)
{
    devMode().dmOrientation = DMORIENT_LANDSCAPE;
    const std::vector<std::uint8_t> before = m_buffer;
    EXPECT_TRUE(openAndPress("DrvDocumentPropertySheets", &m_header, PSBTN_CANCEL));
    EXPECT_EQ(m_buffer, before);

    // What came in by the public field alone leaves in the private part too.
    EXPECT_TRUE(openAndPress("DrvDocumentPropertySheets", &m_header, PSBTN_OK));
    EXPECT_EQ(devMode().dmOrientation, DMORIENT_LANDSCAPE);
    EXPECT_NE(m_buffer, before);

    DevicePropertyHeader device{sizeof device, 0, nullptr, m_printerName};
    EXPECT_TRUE(openAndPress("DrvDevicePropertySheets", &device, PSBTN_CANCEL));
}

TEST_F(DriverSheets, CanBeLookedAtWithoutPermission)
{
    const std::vector<std::uint8_t> before = m_buffer;
    m_header.fMode |= kDocumentNoPermission;
    EXPECT_TRUE(openAndPress("DrvDocumentPropertySheets", &m_header, PSBTN_OK));
    EXPECT_EQ(m_buffer, before);
    // There is no printer to store anything with, and nothing is tried.
    DevicePropertyHeader device{sizeof device, kNoPermission, nullptr, m_printerName};
    EXPECT_TRUE(openAndPress("DrvDevicePropertySheets", &device, PSBTN_OK));
}

TEST_F(DriverSheets, LeaveNothingInTheProcess)
{
    for (const WPARAM button : {WPARAM{PSBTN_OK}, WPARAM{PSBTN_CANCEL}}) {
        // What the system makes once and keeps comes with the first opening.
        openAndPress("DrvDocumentPropertySheets", &m_header, button);
        const test::ResourceGuard guard;
        EXPECT_GT(document(DM_OUT_BUFFER), 0);
        m_header.fMode = kShowSheet;
        EXPECT_TRUE(openAndPress("DrvDocumentPropertySheets", &m_header, button));
    }
}

/// A sheet whose model the test can reach, because it stands for the printer.
class Storing : public DriverSheets, private PrinterStandIn, private IObserver
{
protected:
    /// Of this the public fields say nothing.
    static constexpr auto kTonerSaving = static_cast<DataModelIds::tagFeatureEnum>(3011);

    void SetUp() override
    {
        DriverSheets::SetUp();
        const auto library = LoadLibraryExW((folderOfThisModule() + L"\\o7plimQK.dll").c_str(),
                                            nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
        m_setStandIn = reinterpret_cast<decltype(&O7SetPrinterStandIn)>(
            reinterpret_cast<void*>(GetProcAddress(library, "O7SetPrinterStandIn")));
        ASSERT_NE(m_setStandIn, nullptr);
        m_setStandIn(this);
        s_self = this;
    }
    void TearDown() override
    {
        m_setStandIn(nullptr);
        DriverSheets::TearDown();
    }

    /// Opens the sheet, presses the button and, should the sheet stay, Cancel.
    void openAndDo(const char* entryName, void* header, WPARAM button)
    {
        m_button = button;
        m_presses = 0;
        show(entryName, header,
             [](HWND, UINT, UINT_PTR, DWORD) { EnumThreadWindows(GetCurrentThreadId(), step, 0); });
        EXPECT_GT(m_presses, 0);
    }

    std::function<void(IDataModel&)> m_atOpen; ///< before the button is pressed
    std::function<void(IDataModel&)> m_atOk;   ///< as an observer of OK and Apply
    int m_stores = 0;

private:
    const wchar_t* package() const override { return m_package.c_str(); }
    const wchar_t* language() const override { return L"en"; }
    void loadDeviceSettings(IDataModel& model) override { m_model = &model; }
    bool storeDeviceSettings(const IDataModel& model) override
    {
        EXPECT_FALSE(model.IsModified()) << "not accepted yet";
        ++m_stores;
        return true;
    }
    void pagesAdded(UIManager&) override
    {
        // The model goes with the sheet, and forgets its observers.
        for (const auto event : {DataModelIds::kEventOk, DataModelIds::kEventApply})
            m_model->RegisterForEvent(*this, EventId(event), DataModelIds::kObserverEvent);
    }
    void ProcessNotification(const INotification&, unsigned int) override
    {
        if (m_atOk)
            m_atOk(*m_model);
    }

    static BOOL CALLBACK step(HWND window, LPARAM)
    {
        wchar_t name[16];
        GetClassNameW(window, name, 16);
        if (!IsWindowVisible(window) || !IsWindowEnabled(window) ||
            std::wstring_view(name) != L"#32770")
            return TRUE;
        if (SendMessageW(window, PSM_GETTABCONTROL, 0, 0) == 0)
            PostMessageW(window, WM_COMMAND, IDOK, 0); // a message about what went wrong
        else
            s_self->press(window);
        return FALSE;
    }
    void press(HWND sheet)
    {
        if (m_presses == 0 && m_atOpen)
            m_atOpen(*m_model);
        PostMessageW(sheet, PSM_PRESSBUTTON, m_presses == 0 ? m_button : WPARAM{PSBTN_CANCEL}, 0);
        ++m_presses;
    }

    static inline Storing* s_self = nullptr;
    decltype(&O7SetPrinterStandIn) m_setStandIn = nullptr;
    std::wstring m_package = folderOfThisModule() + L"\\products\\office-c430";
    IDataModel* m_model = nullptr;
    WPARAM m_button = 0;
    int m_presses = 0;
};

TEST_F(Storing, KeepsEverythingThatWasAcceptedAndNothingElse)
{
    const auto change = [](IDataModel& model) {
        EXPECT_TRUE(model.GetFullListOfFeatures().GetBooleanFeature(kTonerSaving).SetValue(true));
    };
    const auto reject = [](IDataModel& model) {
        model.GetOptionFeatureRef(DataModelIds::kFeatureApplyResult)
            .SetValue(DataModelIds::kValueApplyRejected);
    };
    const auto fail = [](IDataModel&) { throw std::runtime_error("observer"); };
    const struct
    {
        const char* what;
        WPARAM button;
        std::function<void(IDataModel&)> atOpen;
        std::function<void(IDataModel&)> atOk;
        bool kept;
    } rows[] = {
        {"OK", PSBTN_OK, change, nullptr, true},
        {"Apply, then Cancel", PSBTN_APPLYNOW, change, nullptr, true},
        {"Cancel", PSBTN_CANCEL, change, nullptr, false},
        {"what an observer of OK writes", PSBTN_OK, nullptr, change, true},
        {"rejected", PSBTN_OK, change, reject, false},
        {"an observer of OK throws", PSBTN_OK, change, fail, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        ASSERT_GT(document(DM_OUT_BUFFER), 0);
        const std::vector<std::uint8_t> before = m_buffer;
        m_header.fMode = kShowSheet;
        m_atOpen = row.atOpen;
        m_atOk = row.atOk;
        // The result itself does not tell OK from Cancel everywhere.
        openAndDo("DrvDocumentPropertySheets", &m_header, row.button);
        EXPECT_EQ(m_buffer != before, row.kept);
        bool reopened = false;
        m_atOpen = [&](IDataModel& model) {
            model.GetFullListOfFeatures()
                .GetBooleanFeature(kTonerSaving)
                .GetValue(reopened, FeatureRef::kAssertIfUnsupported);
        };
        m_atOk = nullptr;
        openAndDo("DrvDocumentPropertySheets", &m_header, PSBTN_CANCEL);
        EXPECT_EQ(reopened, row.kept);

        m_stores = 0;
        m_atOpen = nullptr;
        m_atOk = row.atOk;
        DevicePropertyHeader device{sizeof device, 0, nullptr, m_printerName};
        openAndDo("DrvDevicePropertySheets", &device, row.button);
        EXPECT_EQ(m_stores, row.kept ? 1 : 0);
    }
}

} // namespace
} // namespace o7
