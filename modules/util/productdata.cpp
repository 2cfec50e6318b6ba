#include "productdata.h"

#include <array>
#include <cstdio>
#include <memory>
#include <utility>

namespace {

// Packages are written with "/" and read on systems that prefer the other one.
#if defined(_WIN32)
constexpr const wchar_t* kSeparator = L"\\";
#else
constexpr const wchar_t* kSeparator = L"/";
#endif

// A package may name places inside its own folder alone: nothing absolute, no drive, no step up.
bool staysInside(const CXString& relative)
{
    CXString name = relative;
    name.Replace(L"\\", L"/");
    for (const CXString& part : name.Tokenize(L"/")) {
        if (part.IsEmpty() || part == L".." || part.Find(L':') >= 0) {
            return false;
        }
    }
    return true;
}

struct FileCloser
{
    void operator()(std::FILE* file) const noexcept { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

File openForReading(const CXString& path)
{
#if defined(_WIN32)
    return File(_wfopen(path.c_str(), L"rb"));
#else
    return File(std::fopen(path.ToUtf8().c_str(), "rb"));
#endif
}

bool give(const CXString& text, CXString& result)
{
    if (text.IsEmpty()) {
        return false;
    }
    result = text;
    return true;
}

CXString joined(const std::vector<CXString>& texts)
{
    CXString all;
    for (const CXString& text : texts) {
        if (!all.IsEmpty()) {
            all += L',';
        }
        all += text;
    }
    return all;
}

} // namespace

ProductData::ProductData(const CXString& folder, const ProductInfo& info)
    : m_folder(folder), m_info(info)
{
}

ProductData::~ProductData() = default;

CXString ProductData::GetModelName() const
{
    return m_info.modelName;
}

int ProductData::GetControllerFamily() const
{
    return m_info.controllerFamily;
}

bool ProductData::GetInfo(InfoType type, CXString& info) const
{
    switch (type) {
    case InfoType::ProductFolder:
        return give(m_folder, info);
    case InfoType::UrlFile:
        return give(m_info.urlFile, info);
    case InfoType::HelpFile:
        return give(m_info.helpFile, info);
    case InfoType::ResourceFolder:
        return give(m_info.resourceFolder, info);
    case InfoType::ModelName:
        return give(m_info.modelName, info);
    case InfoType::UniqueId:
        return give(m_info.uniqueId, info);
    case InfoType::ProductId:
        return give(m_info.id, info);
    case InfoType::Languages:
        return give(joined(m_info.languages), info);
    }
    return false;
}

bool ProductData::GetPath(InfoType type, CXString& path) const
{
    if (type == InfoType::ProductFolder) {
        return give(m_folder, path);
    }
    CXString name;
    if (type >= InfoType::ModelName || !GetInfo(type, name)) {
        return false;
    }
    if (!staysInside(name)) {
        return false;
    }
    name.Replace(L"/", kSeparator);
    path = m_folder + kSeparator + name;
    return true;
}

bool ProductData::LoadFile(InfoType type, ByteBuffer& contents) const
{
    CXString path;
    if (!GetPath(type, path)) {
        return false;
    }
    const File file = openForReading(path);
    if (!file) {
        return false;
    }
    ByteBuffer read;
    std::array<std::uint8_t, 16384> part{};
    while (const std::size_t count = std::fread(part.data(), 1, part.size(), file.get())) {
        read.appendLpbyte(part.data(), count);
    }
    if (std::ferror(file.get()) != 0) {
        return false;
    }
    contents = std::move(read);
    return true;
}

CXString ProductData::GetPrinterProductUniqueId() const
{
    return m_info.uniqueId;
}

bool ProductData::IsValidated() const
{
    return m_info.validated;
}
