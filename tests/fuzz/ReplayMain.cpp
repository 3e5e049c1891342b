// Runs a target on files that fuzzers have found, or on seeds: replay TARGET FOLDER.
// Prints the keys and words of the card format for libFuzzer: replay --dictionary.
#include "FuzzHost.h"
#include "FuzzTargets.h"

#include "model/format/PlixFormat.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <iterator>

namespace {

std::string readFile(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// One line of libFuzzer's format.
void printEntry(const std::string& text)
{
    std::cout << std::quoted(text) << '\n';
}

void printEntries(const PlixFormatComponent& format)
{
    printEntry("\"type\":\"" + std::string(format.type) + '"');
    for (const PlixFormatKey& key : format.keys) {
        printEntry('"' + std::string(key.name) + "\":");
        for (const PlixFormatWord& word : key.words)
            printEntry('"' + std::string(word.word) + '"');
    }
}

void printDictionary()
{
    printEntries(plix::BubbleFormat());
    for (const PlixFormatComponent& format : plix::ComponentFormats())
        printEntries(format);
    for (const auto part : {PlixFormatPart::Span, PlixFormatPart::Action, PlixFormatPart::Styles,
                            PlixFormatPart::ZoneStyle})
        printEntries(plix::PartFormat(part));
    for (const char* text :
         {R"(<m user=\"7\">)", "</m>", R"(<e code=\"1F600\"/>)", R"(\u202e)", R"(\ud800)"})
        printEntry(text);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 2 && argv[1] == std::string_view("--dictionary")) {
        printDictionary();
        return EXIT_SUCCESS;
    }
    const plix::test::FuzzTarget* const target =
        argc == 3 ? plix::test::findFuzzTarget(argv[1]) : nullptr;
    if (!target) {
        std::cerr << "usage: replay TARGET FOLDER\n";
        return EXIT_FAILURE;
    }
    plix::test::startFuzzHost();
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(argv[2])) {
        std::cout << entry.path().filename().string() << std::endl;
        const std::string bytes = readFile(entry.path());
        target->run(bytes);
        // What a fuzzer does next with a card.
        if (target->run == &plix::test::fuzzCard) {
            for (unsigned seed = 1; seed <= 20; ++seed)
                target->run(plix::test::mutateCard(bytes, seed));
        }
        ++count;
    }
    if (count == 0)
        std::cerr << "no files in " << argv[2] << '\n';
    return count > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
