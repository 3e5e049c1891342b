// The symbols that the built library shows: the 21 functions, nothing else.
#include "HostExports.h"

#include <gtest/gtest.h>

#include <elf.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

const std::vector<std::string> kExports = {
    "Plix_CreateController",
    "Plix_CreateQGraphicsItem",
    "Plix_Free",
    "Plix_HasAction",
    "Plix_InitData",
    "Plix_InitSetFrom",
    "Plix_ModifyHeight",
    "Plix_RefreshLayout",
    "Plix_ResumeBubbleBkColor",
    "Plix_SetBotMentionHandleCallback",
    "Plix_SetBubbleBkColor",
    "Plix_SetClickCallBack",
    "Plix_SetCurrentLanguage",
    "Plix_SetDisplayParam",
    "Plix_SetDownloadCallBack",
    "Plix_SetDpi",
    "Plix_SetHighLightText",
    "Plix_SetMentionHandleCallback",
    "Plix_SetMultiLangGetCallback",
    "Plix_SetKestroControlSupport",
    "Plix_SetWiteLogCallback",
};

#if defined(__LP64__)
using Header = Elf64_Ehdr;
using Section = Elf64_Shdr;
using Symbol = Elf64_Sym;
constexpr unsigned char kClass = ELFCLASS64;
#else
using Header = Elf32_Ehdr;
using Section = Elf32_Shdr;
using Symbol = Elf32_Sym;
constexpr unsigned char kClass = ELFCLASS32;
#endif

struct DefinedSymbol {
    std::string name;
    unsigned type;
};

// A shared library's file, read as far as its dynamic symbol table.
class SharedLibrary {
public:
    explicit SharedLibrary(const std::string& path)
    {
        std::ifstream file(path, std::ios::binary);
        bytes_.assign(std::istreambuf_iterator<char>(file), {});
    }

    bool isElf() const
    {
        if (bytes_.size() < sizeof(Header))
            return false;
        const auto header = at<Header>(0);
        return std::memcmp(header.e_ident, ELFMAG, SELFMAG) == 0
            && header.e_ident[EI_CLASS] == kClass && header.e_type == ET_DYN;
    }

    // Every symbol that another module could bind to, whatever its type.
    std::vector<DefinedSymbol> definedSymbols() const
    {
        std::vector<DefinedSymbol> symbols;
        for (const Section& section : sections()) {
            if (section.sh_type == SHT_DYNSYM)
                collect(section, symbols);
        }
        return symbols;
    }

private:
    template <typename Record> Record at(std::size_t offset) const
    {
        Record record {};
        if (offset + sizeof record <= bytes_.size())
            std::memcpy(&record, bytes_.data() + offset, sizeof record);
        else
            ADD_FAILURE() << "the file ends before " << offset;
        return record;
    }

    std::vector<Section> sections() const
    {
        const auto header = at<Header>(0);
        std::vector<Section> all;
        for (std::size_t i = 0; i < header.e_shnum; ++i)
            all.push_back(at<Section>(header.e_shoff + i * header.e_shentsize));
        return all;
    }

    void collect(const Section& table, std::vector<DefinedSymbol>& symbols) const
    {
        const Section names = sections().at(table.sh_link);
        for (std::size_t i = 0; i < table.sh_size / sizeof(Symbol); ++i) {
            const auto symbol = at<Symbol>(table.sh_offset + i * sizeof(Symbol));
            if (symbol.st_shndx == SHN_UNDEF || ELF64_ST_BIND(symbol.st_info) == STB_LOCAL)
                continue;
            symbols.push_back({bytes_.data() + names.sh_offset + symbol.st_name,
                               static_cast<unsigned>(ELF64_ST_TYPE(symbol.st_info))});
        }
    }

    std::vector<char> bytes_;
};

TEST(ExportTable, TheLibraryShowsTheTwentyOneFunctionsAndNothingElse)
{
    const SharedLibrary library(PLIX_LIBRARY);
    ASSERT_TRUE(library.isElf());
    std::vector<std::string> shown;
    for (const DefinedSymbol& symbol : library.definedSymbols()) {
        EXPECT_EQ(symbol.type, unsigned {STT_FUNC}) << symbol.name;
        shown.push_back(symbol.name);
    }
    // Their order in the file is that of a hash table.
    std::sort(shown.begin(), shown.end());
    std::vector<std::string> expected = kExports;
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(shown, expected);
    EXPECT_EQ(expected.size(), 21U);
}

TEST(ExportTable, TheListOfTheBuildHasTheSameOrder)
{
    std::ifstream file(PLIX_EXPORTS_FILE);
    const std::vector<std::string> listed {std::istream_iterator<std::string>(file), {}};
    EXPECT_EQ(listed, kExports);
}

TEST(ExportTable, TheHeaderDeclaresThemAll)
{
#define PLIX_NAME(name) #name,
    const std::vector<std::string> declared = {PLIX_FOR_EACH_EXPORT(PLIX_NAME)};
#undef PLIX_NAME
    EXPECT_EQ(declared, kExports);
}

} // namespace
