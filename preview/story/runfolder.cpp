#include "runfolder.h"

#include <random>
#include <string>
#include <system_error>

namespace o7::story {

RunFolder::RunFolder()
{
    std::random_device random;
    do {
        m_path = std::filesystem::temp_directory_path() / ("o7story-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(m_path));
}

RunFolder::~RunFolder()
{
    std::error_code error; // what cannot be removed is the system's to clear away
    std::filesystem::remove_all(m_path, error);
}

} // namespace o7::story
