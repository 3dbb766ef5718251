// What a candidate's libraries weigh on the instrument's storage.

#include "Candidate.h"
#include "Process.h"
#include "groups/Groups.h"

#include <elf.h>
#include <link.h>

#include <cstdio>
#include <fstream>
#include <set>
#include <sstream>

namespace bench {

namespace {

constexpr const char* weighed[] = {"ours", "classes", "qml-cache"};

/** Paths of the shared libraries that a program is started with; it does not run itself. */
std::set<std::string> librariesOf(const std::string& key)
{
    const EnvironmentVariable traced("LD_TRACE_LOADED_OBJECTS", "1");
    std::istringstream lines(runChild({besideOwnPath("qtpanfx_bench_start_" + key)}).output);
    std::set<std::string> paths;
    for (std::string line; std::getline(lines, line);) {
        const std::size_t begin = line.find("=> /");
        if (begin == std::string::npos)
            continue;
        const std::size_t end = line.find(" (", begin);
        paths.insert(line.substr(begin + 3, end == std::string::npos ? end : end - begin - 3));
    }
    return paths;
}

/** Bytes of a library that are loaded; its tables for debuggers are not counted. */
double loadedBytes(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    ElfW(Ehdr) header = {};
    if (!file.read(reinterpret_cast<char*>(&header), sizeof header))
        return 0;
    double bytes = 0;
    file.seekg(static_cast<std::streamoff>(header.e_phoff));
    for (int i = 0; i < header.e_phnum; ++i) {
        ElfW(Phdr) part = {};
        if (!file.read(reinterpret_cast<char*>(&part), sizeof part))
            return 0;
        if (part.p_type == PT_LOAD)
            bytes += static_cast<double>(part.p_filesz);
    }
    return bytes;
}

} // namespace

void measureSize(Run& run)
{
    // one that is linked into the program, as UiTools of Qt 5, is none
    run.table.group("Shared libraries that a program needs beside those of the floor");
    const std::set<std::string> floor = librariesOf("code");
    if (floor.empty())
        run.table.fault("the floor's libraries are not told");
    for (const char* key : weighed) {
        double bytes = 0;
        int count = 0;
        for (const std::string& path : librariesOf(key)) {
            if (floor.count(path) != 0)
                continue;
            bytes += loadedBytes(path);
            ++count;
        }
        char text[64];
        std::snprintf(text, sizeof text, "%.0f KiB in %d", bytes / 1024, count);
        run.table.value(maker(key).name, text, bytes / 1024);
    }
}

} // namespace bench
