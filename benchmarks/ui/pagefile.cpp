// The file in which recorded pages travel from one process to another.

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "rawsheet.h"

namespace o7::bench {

namespace {

/// Writes or reads the fields of the records; the same list of fields serves both ways.
class Writer
{
public:
    explicit Writer(const std::wstring& path)
        : m_file(std::filesystem::path(path), std::ios::binary)
    {
    }
    template <class T> void plain(T& value)
    {
        m_file.write(reinterpret_cast<const char*>(&value), sizeof value);
    }
    void text(std::wstring& value)
    {
        std::size_t length = value.size();
        plain(length);
        m_file.write(reinterpret_cast<const char*>(value.data()),
                     static_cast<std::streamsize>(length * sizeof(wchar_t)));
    }
    template <class T, class Each> void list(std::vector<T>& values, Each each)
    {
        std::size_t count = values.size();
        plain(count);
        for (T& value : values)
            each(value);
    }
    bool good() { return m_file.good(); }

private:
    std::ofstream m_file;
};

class Reader
{
public:
    explicit Reader(const std::wstring& path)
        : m_file(std::filesystem::path(path), std::ios::binary)
    {
    }
    template <class T> void plain(T& value)
    {
        if (!m_file.read(reinterpret_cast<char*>(&value), sizeof value))
            throw std::runtime_error("the recorded pages are incomplete");
    }
    void text(std::wstring& value)
    {
        std::size_t length = 0;
        plain(length);
        value.resize(length);
        for (wchar_t& character : value)
            plain(character);
    }
    template <class T, class Each> void list(std::vector<T>& values, Each each)
    {
        std::size_t count = 0;
        plain(count);
        values.resize(count);
        for (T& value : values)
            each(value);
    }

private:
    std::ifstream m_file;
};

template <class File> void transfer(File& file, std::vector<RawWindow>& windows)
{
    file.list(windows, [&](RawWindow& window) {
        file.text(window.className);
        file.text(window.text);
        file.plain(window.style);
        file.plain(window.exStyle);
        file.plain(window.place);
        file.plain(window.id);
        file.plain(window.enabled);
        file.plain(window.bold);
        file.list(window.items, [&](std::wstring& item) { file.text(item); });
        file.list(window.messages, [&](RawMessage& message) { file.plain(message); });
    });
}

template <class File> void transfer(File& file, RawSheet& sheet)
{
    file.list(sheet.pages, [&](RawPage& page) {
        file.text(page.title);
        file.plain(page.width);
        file.plain(page.height);
        transfer(file, page.windows);
    });
    file.list(sheet.areas, [&](RawArea& area) {
        file.plain(area.place);
        transfer(file, area.windows);
    });
}

} // namespace

void saveSheet(const RawSheet& sheet, const std::wstring& path)
{
    Writer file(path);
    RawSheet copy = sheet;
    transfer(file, copy);
    if (!file.good())
        throw std::runtime_error("the recorded pages could not be written");
}

RawSheet loadSheet(const std::wstring& path)
{
    Reader file(path);
    RawSheet sheet;
    transfer(file, sheet);
    return sheet;
}

} // namespace o7::bench
