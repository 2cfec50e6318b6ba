#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "cxstring.h"
#include "previewoptions.h"
#include "uimode.h"

class UIManager;

namespace o7 {

class ProductSession;

/// What the program ends with.
enum class ExitCode
{
    Done = 0,
    Failed = 1,   ///< something that was asked for could not be done
    BadInput = 2, ///< options, product or package are at fault; nothing was opened
};

/// One run of the preview: finds the product, opens its settings, shows the UI through the entry
/// asked for, keeps what was accepted. Reports everything in sentences on the error stream.
class PreviewRun
{
public:
    /// @param programFolder  where the folder of the product packages is when none is named.
    PreviewRun(PreviewOptions options, const std::filesystem::path& programFolder);
    ~PreviewRun();
    PreviewRun(const PreviewRun&) = delete;
    PreviewRun& operator=(const PreviewRun&) = delete;

    /// Lets through what the modules throw.
    ExitCode run();

private:
    bool openSession();
    bool applyFamily();
    void loadJobTicket();
    bool saveJobTicket();
    bool show();
    bool showVisited();
    void openEntry();
    void openPlugin();
    UIMode mode() const;
    std::filesystem::path jobTicketPath() const;
    CXString personalSettings() const;
    std::wstring aboutText() const;
    std::wstring snapshotHeading() const;

    PreviewOptions m_options;
    std::filesystem::path m_productsRoot;
    std::filesystem::path m_package; ///< the product's folder
    std::wstring m_productName;
    std::unique_ptr<ProductSession> m_session;
    const UIManager* m_manager = nullptr; ///< whose pages are shown; borrowed while they are
    bool m_accepted = false;              ///< by an entry that is no event of our model
};

} // namespace o7
