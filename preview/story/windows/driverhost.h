#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "printerstandin.h"
#include "storyhost.h"
#include "storystore.h"

namespace o7::story {

/// The entry cpsui: a program with a document, and a printer that keeps what the driver stores with
/// it. Both keep bytes only, as programs and print system do: the document is a DEVMODE, the
/// printer has its device settings and the settings for new documents.
class DriverHost : public StoryHost, private PrinterStandIn
{
public:
    /// @param store  the folder of the printer.
    DriverHost(const std::filesystem::path& package, const Session& session,
               const std::filesystem::path& store);

    void show() override;
    std::string documentField(const std::string& field) const override;
    void setDocumentField(const std::string& field, const std::string& value) override;

private:
    using Bytes = std::vector<std::uint8_t>;

    const wchar_t* package() const override { return m_package.c_str(); }
    const wchar_t* language() const override { return m_language.c_str(); }
    void loadDeviceSettings(IDataModel& model) override;
    bool storeDeviceSettings(const IDataModel& model) override;
    void pagesAdded(UIManager& manager) override;

    Bytes newDocument();

    std::wstring m_package;
    std::wstring m_language;
    StoryStore m_store;
    Bytes m_document;
};

} // namespace o7::story
