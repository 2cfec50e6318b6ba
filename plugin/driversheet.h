#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "iobserver.h"
#include "printerddi.h"
#include "productsession.h"
#include "uimode.h"

class UIManager;

namespace o7 {

/// The pages of one product inside the print system's property sheet, from reason "init" to reason
/// "destroy". Owns what stands behind the pages. Settings are stored when the data model says that
/// it accepted them (after OK and Apply), because the print system's own result does not tell OK
/// from Cancel everywhere.
class DriverSheet : private IObserver
{
public:
    /// Called when the model has accepted the settings, to store them. False when nothing was to be
    /// stored: then the print system is told nothing. Throws when it cannot: then the model takes
    /// the acceptance back as well.
    using Accepted = std::function<bool(IDataModel&)>;

    /// @param session      with the settings that the pages shall show.
    /// @param printerName  for the sheet's caption; null: the model's name.
    DriverSheet(std::unique_ptr<ProductSession> session, UIMode mode, const wchar_t* printerName,
                Accepted accepted);
    ~DriverSheet() override;

    /// Reason "init": hands the pages over.
    /// @throws ExceptionTabCreationFailure when a page is refused; others as the UI does.
    void addPages(const PROPSHEETUI_INFO& info);

    /// Reason "get header".
    void fillHeader(PROPSHEETUI_INFO_HEADER& header) const;

private:
    void ProcessNotification(const INotification& notification, unsigned int kind) override;
    void reportAccepted() const;
    void remember(LONG_PTR page) noexcept;
    void leaveList() noexcept;
    static DriverSheet* ofHandle(HANDLE comPropSheet) noexcept;
    static LONG_PTR CALLBACK addAndRemember(HANDLE sheet, UINT function, LPARAM first,
                                            LPARAM second) noexcept;

    std::unique_ptr<ProductSession> m_session;
    Accepted m_accepted;
    CXString m_printer; ///< empty when the print system names none
    std::wstring m_title;
    HANDLE m_comPropSheet = nullptr;
    ComPropSheetCallback m_callback = nullptr;
    std::vector<LONG_PTR> m_pages; ///< as the print system names them
    std::unique_ptr<UIManager> m_manager;
    DriverSheet* m_next = nullptr; ///< in the list of all sheets; borrowed
};

} // namespace o7
