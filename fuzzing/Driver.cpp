// Drives a target without libFuzzer, for the tests: feeds every file of some folders, then a number of
// inputs that are made of those. A finding ends the program; the input stays as "finding-NAME" in the
// current folder.
#include "Mutator.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

std::string finding;

void feed(const fuzz::Input& input)
{
    // On the disk before: nothing can be written once the program has crashed.
    std::ofstream(finding, std::ios::binary)
        .write(reinterpret_cast<const char*>(input.data()), std::streamsize(input.size()))
        .flush();
    LLVMFuzzerTestOneInput(input.data(), input.size());
}

/// In an order that is the same everywhere.
std::vector<fs::path> filesIn(const fs::path& folder)
{
    std::vector<fs::path> files;
    if (!fs::is_directory(folder))
        return files;
    for (const auto& entry : fs::directory_iterator(folder))
        files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

fuzz::Input contents(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

unsigned number(const char* text)
{
    unsigned value = 0;
    std::from_chars(text, text + std::strlen(text), value);
    return value;
}

} // namespace

int main(int count, char** arguments)
{
    unsigned runs = 0;
    unsigned seed = 1;
    std::vector<fuzz::Input> corpus;
    finding = fs::absolute("finding-" + fs::path(arguments[0]).filename().string()).string();
    LLVMFuzzerInitialize(&count, &arguments);
    for (int i = 1; i < count; ++i) {
        const std::string argument = arguments[i];
        if (argument == "--runs" && i + 1 < count)
            runs = number(arguments[++i]);
        else if (argument == "--seed" && i + 1 < count)
            seed = number(arguments[++i]);
        else if (fs::is_regular_file(argument))
            corpus.push_back(contents(argument));
        else
            for (const fs::path& file : filesIn(argument))
                corpus.push_back(contents(file));
    }
    if (corpus.empty()) {
        std::fprintf(stderr, "there is nothing to feed\n");
        return 1;
    }

    for (const fuzz::Input& input : corpus)
        feed(input);
    fuzz::Mutator mutator(seed);
    for (unsigned i = 0; i < runs; ++i)
        feed(mutator.made(corpus));
    fs::remove(finding);
    std::printf("%zu files and %u inputs made of them\n", corpus.size(), runs);
    return 0;
}
