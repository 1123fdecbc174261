#include "Files.h"

#include <fstream>
#include <sstream>

namespace desktop {

std::string contentsOf(const std::filesystem::path& file)
{
    std::ostringstream contents;
    contents << std::ifstream(file, std::ios::binary).rdbuf();
    return contents.str();
}

std::vector<std::filesystem::path> filesBelow(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> files;
    std::error_code error;
    for (std::filesystem::recursive_directory_iterator file(folder, error), end;
         !error && file != end; file.increment(error)) {
        if (file->is_regular_file(error))
            files.push_back(file->path());
    }
    return files;
}

} // namespace desktop
