#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "previewoptions.h"

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
    bool showVisited(UIManager& manager);
    void openEntry(UIManager& manager);
    void openDialog(UIManager& manager);
    std::filesystem::path jobTicketPath() const;
    std::wstring aboutText() const;
    std::wstring snapshotHeading() const;

    PreviewOptions m_options;
    std::filesystem::path m_productsRoot;
    std::wstring m_productName;
    std::unique_ptr<ProductSession> m_session;
    bool m_dialogAccepted = false;
};

} // namespace o7
