#include "fuzz/Target.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

void replay(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    const std::string input(std::istreambuf_iterator<char>(file), {});
    std::fprintf(stderr, "%s\n", path.filename().c_str()); // the last one is the one that failed
    fuzz::tryInput(input);
}

} // namespace

// Stands in for the fuzzing engine where there is none: gives the files of a folder to a target,
// after an input of no bytes.
int main(int argumentCount, char** arguments)
{
    if (argumentCount != 2) {
        std::fprintf(stderr, "usage: %s FOLDER\n", arguments[0]);
        return 2;
    }
    fuzz::tryInput({});
    const std::filesystem::directory_iterator folder(arguments[1]);
    std::vector<std::filesystem::path> files(begin(folder), end(folder));
    std::ranges::sort(files);
    std::ranges::for_each(files, replay);
    return files.empty() ? 1 : 0;
}
