// The export table of a Windows library.
#include "ExportedSymbols.h"
#include "LibraryFile.h"

#include <windows.h>

#include <cstdint>

namespace {

class Library {
public:
    explicit Library(const std::string& path)
        : file_(path)
        , start_(static_cast<std::size_t>(file_.at<IMAGE_DOS_HEADER>(0).e_lfanew))
        , headers_(file_.at<IMAGE_NT_HEADERS>(start_))
    {
    }

    bool isOfThisPlatform() const
    {
        return headers_.Signature == IMAGE_NT_SIGNATURE
            && headers_.OptionalHeader.Magic == IMAGE_NT_OPTIONAL_HDR_MAGIC
            && (headers_.FileHeader.Characteristics & IMAGE_FILE_DLL) != 0;
    }

    std::vector<ExportedSymbol> exports() const
    {
        const auto table = record<IMAGE_EXPORT_DIRECTORY>(directory().VirtualAddress);
        std::vector<ExportedSymbol> symbols;
        for (DWORD i = 0; i < table.NumberOfFunctions; ++i) {
            const auto address = element<std::uint32_t>(table.AddressOfFunctions, i);
            // A gap in the ordinals.
            if (address == 0)
                continue;
            symbols.push_back({{}, isCode(address), static_cast<int>(table.Base + i)});
        }
        for (DWORD i = 0; i < table.NumberOfNames; ++i) {
            const auto index = element<std::uint16_t>(table.AddressOfNameOrdinals, i);
            symbols.at(index).name =
                file_.text(offsetOf(element<std::uint32_t>(table.AddressOfNames, i)));
        }
        return symbols;
    }

private:
    const IMAGE_DATA_DIRECTORY& directory() const
    {
        return headers_.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT];
    }

    IMAGE_SECTION_HEADER sectionOf(DWORD address) const
    {
        const std::size_t first = start_ + offsetof(IMAGE_NT_HEADERS, OptionalHeader)
            + headers_.FileHeader.SizeOfOptionalHeader;
        for (WORD i = 0; i < headers_.FileHeader.NumberOfSections; ++i) {
            const auto section =
                file_.at<IMAGE_SECTION_HEADER>(first + i * sizeof(IMAGE_SECTION_HEADER));
            if (address - section.VirtualAddress < section.Misc.VirtualSize)
                return section;
        }
        ADD_FAILURE() << "no section has the address " << address;
        return {};
    }

    std::size_t offsetOf(DWORD address) const
    {
        const IMAGE_SECTION_HEADER section = sectionOf(address);
        return address - section.VirtualAddress + section.PointerToRawData;
    }

    template <typename Record> Record record(DWORD address) const
    {
        return file_.at<Record>(offsetOf(address));
    }

    template <typename Element> Element element(DWORD array, DWORD index) const
    {
        return record<Element>(array + index * static_cast<DWORD>(sizeof(Element)));
    }

    // An export that is forwarded to another library has a name instead of code.
    bool isCode(DWORD address) const
    {
        return (sectionOf(address).Characteristics & IMAGE_SCN_MEM_EXECUTE) != 0;
    }

    LibraryFile file_;
    std::size_t start_;
    IMAGE_NT_HEADERS headers_;
};

} // namespace

std::vector<ExportedSymbol> exportedSymbols(const std::string& path)
{
    const Library library(path);
    return library.isOfThisPlatform() ? library.exports() : std::vector<ExportedSymbol>();
}
