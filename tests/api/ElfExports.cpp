// The dynamic symbol table of an ELF library.
#include "ExportedSymbols.h"
#include "LibraryFile.h"

#include <elf.h>

namespace {

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

bool isLibrary(const Header& header)
{
    return std::memcmp(header.e_ident, ELFMAG, SELFMAG) == 0 && header.e_ident[EI_CLASS] == kClass
        && header.e_type == ET_DYN;
}

std::vector<Section> sectionsOf(const LibraryFile& file, const Header& header)
{
    std::vector<Section> sections;
    for (std::size_t i = 0; i < header.e_shnum; ++i)
        sections.push_back(file.at<Section>(header.e_shoff + i * header.e_shentsize));
    return sections;
}

void collect(const LibraryFile& file, const Section& table, const Section& names,
             std::vector<ExportedSymbol>& symbols)
{
    for (std::size_t i = 0; i < table.sh_size / sizeof(Symbol); ++i) {
        const auto symbol = file.at<Symbol>(table.sh_offset + i * sizeof(Symbol));
        if (symbol.st_shndx == SHN_UNDEF || ELF64_ST_BIND(symbol.st_info) == STB_LOCAL)
            continue;
        symbols.push_back({file.text(names.sh_offset + symbol.st_name),
                           ELF64_ST_TYPE(symbol.st_info) == STT_FUNC, std::nullopt});
    }
}

} // namespace

std::vector<ExportedSymbol> exportedSymbols(const std::string& path)
{
    const LibraryFile file(path);
    const auto header = file.at<Header>(0);
    if (!isLibrary(header))
        return {};
    std::vector<ExportedSymbol> symbols;
    const std::vector<Section> sections = sectionsOf(file, header);
    for (const Section& section : sections) {
        if (section.sh_type == SHT_DYNSYM)
            collect(file, section, sections.at(section.sh_link), symbols);
    }
    return symbols;
}
