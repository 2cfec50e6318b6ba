#include "driversheet.h"

#include <new>
#include <utility>

#include "printerstandin.h"
#include "uimanager.h"
#include "uistringnumbers.h"

namespace o7 {
namespace {

constexpr DataModelIds::EventEnum kStoringEvent = DataModelIds::kEventAccepted;

/// Where the person's own choices about the pages are kept, a key for each printer.
constexpr wchar_t kPersonalSettings[] = L"Software\\Orvik\\Printers";

/// The sheets of this process. The print system's callback has no room for a context of the
/// caller's, so the sheet is found by the handle that comes with every call.
SRWLOCK g_lock = SRWLOCK_INIT;
DriverSheet* g_first = nullptr;

/// "<printer> – Printing Preferences", in the language of the pages.
std::wstring captionOf(ProductSession& session, UIMode mode, const wchar_t* printerName)
{
    const unsigned caption = mode == UIMode::DeviceSettings     ? O7STR_CAPTION_DEVICE
                             : mode == UIMode::PrintingDefaults ? O7STR_CAPTION_DEFAULTS
                                                                : O7STR_CAPTION_PREFERENCES;
    const CXString name =
        printerName != nullptr ? CXString(printerName) : session.productData().GetModelName();
    const CXString text = name + L" \u2013 " + session.strings().LoadStringW(caption);
    return std::wstring(text.View());
}

class Locked
{
public:
    Locked() { AcquireSRWLockExclusive(&g_lock); }
    ~Locked() { ReleaseSRWLockExclusive(&g_lock); }
    Locked(const Locked&) = delete;
    Locked& operator=(const Locked&) = delete;
};

} // namespace

DriverSheet::DriverSheet(std::unique_ptr<ProductSession> session, UIMode mode,
                         const wchar_t* printerName, Accepted accepted)
    : m_session(std::move(session)),
      m_accepted(std::move(accepted)),
      m_printer(printerName != nullptr ? CXString(printerName) : CXString()),
      m_title(captionOf(*m_session, mode, printerName)),
      m_manager(std::make_unique<UIManager>(m_session->productData(), nullptr, mode, 0,
                                            Workflow::Standard))
{
    m_session->model().RegisterForEvent(*this, EventId(kStoringEvent),
                                        DataModelIds::kObserverEvent);
    const Locked locked;
    m_next = std::exchange(g_first, this);
}

DriverSheet::~DriverSheet()
{
    leaveList();
    m_session->model().UnregisterForEvent(*this, EventId(kStoringEvent),
                                          DataModelIds::kObserverEvent);
}

void DriverSheet::leaveList() noexcept
{
    const Locked locked;
    DriverSheet** link = &g_first;
    while (*link != this) {
        link = &(*link)->m_next;
    }
    *link = m_next;
}

DriverSheet* DriverSheet::ofHandle(HANDLE comPropSheet) noexcept
{
    const Locked locked;
    DriverSheet* sheet = g_first;
    while (sheet != nullptr && sheet->m_comPropSheet != comPropSheet) {
        sheet = sheet->m_next;
    }
    return sheet;
}

void DriverSheet::addPages(const PROPSHEETUI_INFO& info)
{
    if (printerStandIn() == nullptr) { // which has a person and a place of its own
        m_manager->setPersonalSettings(kPersonalSettings, m_printer);
    }
    m_comPropSheet = info.hComPropSheet;
    m_callback = reinterpret_cast<ComPropSheetCallback>(info.pfnComPropSheet);
    try {
        m_manager->initializeForCPSUI(info.hComPropSheet, addAndRemember,
                                      m_session->featureServices(), m_session->strings(), nullptr);
    } catch (...) {
        // Pages that were added must not outlive what they show.
        for (const LONG_PTR page : m_pages) {
            m_callback(m_comPropSheet, CPSFUNC_DELETE_HCOMPROPSHEET, page, 0);
        }
        throw;
    }
    if (PrinterStandIn* const standIn = printerStandIn()) {
        standIn->pagesAdded(*m_manager);
    }
}

LONG_PTR CALLBACK DriverSheet::addAndRemember(HANDLE sheet, UINT function, LPARAM first,
                                              LPARAM second) noexcept
{
    DriverSheet* const self = ofHandle(sheet);
    if (self == nullptr) {
        return 0;
    }
    const LONG_PTR result = self->m_callback(sheet, function, first, second);
    if (function == CPSFUNC_ADD_PROPSHEETPAGEW && result > 0) {
        self->remember(result);
    }
    return result;
}

void DriverSheet::remember(LONG_PTR page) noexcept
{
    try {
        m_pages.push_back(page);
    } catch (const std::bad_alloc&) {
        // Needed to report the result and to undo, which the settings do not depend on.
        OutputDebugStringW(L"DriverSheet: out of memory\n");
    }
}

void DriverSheet::fillHeader(PROPSHEETUI_INFO_HEADER& header) const
{
    header.pTitle = const_cast<wchar_t*>(m_title.c_str());
    header.Flags = PSUIHDRF_EXACT_PTITLE;
}

void DriverSheet::ProcessNotification(const INotification&, unsigned int)
{
    // Registered for one event only: the settings were accepted, and nothing was stored yet.
    if (m_accepted(m_session->model())) {
        reportAccepted();
    }
}

/// Tells the print system, which tells the application that there is something to take.
void DriverSheet::reportAccepted() const
{
    if (!m_pages.empty()) {
        m_callback(m_comPropSheet, CPSFUNC_SET_RESULT, m_pages.front(), CPSUI_OK);
    }
}

} // namespace o7
