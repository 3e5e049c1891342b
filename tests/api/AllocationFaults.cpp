#include "api/AllocationFaults.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <link.h>
#include <new>
#include <string_view>

namespace {

// ----- Who calls

struct CodeRange {
    std::uintptr_t begin;
    std::uintptr_t end;
};

// Of the program, which has the library in it, and of what it calls.
struct OurCode {
    std::array<CodeRange, 16> ranges;
    std::size_t count = 0;
};

OurCode ourCode;

bool isOurs(std::string_view file)
{
    // The program itself has no name.
    if (file.empty())
        return true;
    for (const std::string_view name : {"KestroControl", "libjsoncpp", "libstdc++"}) {
        if (file.find(name) != std::string_view::npos)
            return true;
    }
    return false;
}

int addCode(dl_phdr_info* module, std::size_t, void*)
{
    if (!isOurs(module->dlpi_name))
        return 0;
    for (int i = 0; i < module->dlpi_phnum; ++i) {
        const ElfW(Phdr)& segment = module->dlpi_phdr[i];
        const bool isCode = segment.p_type == PT_LOAD && (segment.p_flags & PF_X) != 0;
        if (isCode && ourCode.count < ourCode.ranges.size()) {
            const std::uintptr_t begin = module->dlpi_addr + segment.p_vaddr;
            ourCode.ranges[ourCode.count++] = {begin, begin + segment.p_memsz};
        }
    }
    return 0;
}

bool isOurs(const void* caller)
{
    const auto address = reinterpret_cast<std::uintptr_t>(caller);
    for (std::size_t i = 0; i < ourCode.count; ++i) {
        if (address >= ourCode.ranges[i].begin && address < ourCode.ranges[i].end)
            return true;
    }
    return false;
}

// ----- What fails

using Kind = plix::test::AllocationFaults::Kind;

struct Fault {
    int callsLeft = 0; // 0: none is planned
    bool isLasting = false;
    bool hasThrown = false;
};

// Of this thread: tests have one.
thread_local Fault fault;

bool failsFor(const void* caller)
{
    if (fault.callsLeft == 0 || !isOurs(caller))
        return false;
    if (--fault.callsLeft > 0)
        return false;
    fault.hasThrown = true;
    if (fault.isLasting)
        fault.callsLeft = 1;
    return true;
}

std::atomic<int> blocks {0};

void* allocate(std::size_t size, const void* caller)
{
    void* const block = failsFor(caller) ? nullptr : std::malloc(size);
    if (!block)
        throw std::bad_alloc();
    ++blocks;
    return block;
}

void release(void* block)
{
    if (block)
        --blocks;
    std::free(block);
}

} // namespace

void* operator new(std::size_t size)
{
    return allocate(size, __builtin_return_address(0));
}

void* operator new[](std::size_t size)
{
    return allocate(size, __builtin_return_address(0));
}

void operator delete(void* block) noexcept
{
    release(block);
}

void operator delete[](void* block) noexcept
{
    release(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    release(block);
}

void operator delete[](void* block, std::size_t) noexcept
{
    release(block);
}

namespace plix::test {

AllocationFaults::AllocationFaults(int n, Kind kind)
{
    if (ourCode.count == 0)
        dl_iterate_phdr(&addCode, nullptr);
    fault = {n, kind == Kind::Lasting, false};
}

AllocationFaults::~AllocationFaults()
{
    fault = {};
}

bool AllocationFaults::hasThrown() const
{
    return fault.hasThrown;
}

int liveBlocks()
{
    return blocks;
}

} // namespace plix::test
