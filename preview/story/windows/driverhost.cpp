#include "driverhost.h"

#include <span>
#include <utility>

#include "devmodelayout.h"
#include "documentfields.h"
#include "idatamodel.h"
#include "otherwindow.h"
#include "pluginsheet.h"
#include "printerddi.h"
#include "stepfailure.h"
#include "uimode.h"

namespace o7::story {
namespace {

constexpr wchar_t kPrinterName[] = L"Printer of the story";

PublicFields fieldsOf(const std::vector<std::uint8_t>& document)
{
    const auto parts = readDevMode(document);
    if (!parts) {
        throw StepFailure("The driver made no settings that a program can read.");
    }
    return parts->fields;
}

} // namespace

DriverHost::DriverHost(const std::filesystem::path& package, const Session& session,
                       const std::filesystem::path& store)
    : StoryHost(package, session),
      m_package(package.wstring()),
      m_language(wide(session.language)),
      m_store(store, session.product)
{
    m_document = newDocument();
}

/// As the print system makes one: with the printer's settings for new documents.
DriverHost::Bytes DriverHost::newDocument()
{
    return PluginSheet(*this, kPrinterName)
        .newDocument(m_store.load(StoryStore::Record::Defaults).value_or(Bytes()));
}

void DriverHost::show()
{
    PluginSheet sheet(*this, kPrinterName);
    switch (static_cast<UIMode>(session().mode)) {
    case UIMode::DeviceSettings:
        sheet.showDevice(nullptr);
        break;
    case UIMode::PrintingDefaults:
        if (sheet.showDocument(nullptr, m_document, kUserDefaults)) {
            m_store.keep(StoryStore::Record::Defaults, m_document);
        }
        break;
    default:
        sheet.showDocument(nullptr, m_document);
    }
    setManager(nullptr);
}

void DriverHost::loadDeviceSettings(IDataModel& model)
{
    if (const auto block = m_store.load(StoryStore::Record::Printer)) {
        model.ImportSettings(block->data(), block->size());
    }
}

bool DriverHost::storeDeviceSettings(const IDataModel& model)
{
    Bytes block;
    if (!model.ExportSettings(block)) {
        return false;
    }
    m_store.keep(StoryStore::Record::Printer, block);
    return true;
}

/// The manager goes with the sheet.
void DriverHost::pagesAdded(UIManager& manager)
{
    setManager(&manager);
}

std::string DriverHost::documentField(const std::string& field) const
{
    return documentFieldText(fieldsOf(m_document), field);
}

void DriverHost::setDocumentField(const std::string& field, const std::string& value)
{
    PublicFields fields = fieldsOf(m_document);
    if (const std::string expected = o7::story::setDocumentField(fields, field, value);
        !expected.empty()) {
        throw StepFailure("The field " + field + " takes " + expected + ".");
    }
    writePublicPart(std::span(m_document).first<kPublicPartSize>(), CXString(kPrinterName), fields,
                    m_document.size() - kPublicPartSize);
}

} // namespace o7::story
