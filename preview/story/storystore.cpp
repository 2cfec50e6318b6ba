#include "storystore.h"

#include <fstream>
#include <iterator>
#include <utility>

#include "stepfailure.h"

namespace o7::story {

StoryStore::StoryStore(std::filesystem::path folder, std::string product)
    : m_folder(std::move(folder)), m_product(std::move(product))
{
}

std::optional<std::vector<std::uint8_t>> StoryStore::load(Record record) const
{
    std::ifstream stream(file(record), std::ios::binary);
    if (!stream) {
        return std::nullopt;
    }
    return std::vector<std::uint8_t>(std::istreambuf_iterator<char>(stream), {});
}

void StoryStore::keep(Record record, const std::vector<std::uint8_t>& bytes) const
{
    std::ofstream stream(file(record), std::ios::binary | std::ios::trunc);
    stream.write(reinterpret_cast<const char*>(bytes.data()),
                 static_cast<std::streamsize>(bytes.size()));
    stream.close();
    if (!stream) {
        throw StepFailure("What was accepted cannot be written to " + file(record).string() + ".");
    }
}

std::filesystem::path StoryStore::file(Record record) const
{
    const char* const names[] = {".printer", ".defaults", ".document"};
    return m_folder / (m_product + names[static_cast<std::size_t>(record)]);
}

} // namespace o7::story
