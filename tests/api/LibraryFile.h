#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

// Reads records from the bytes of a file.
class LibraryFile {
public:
    explicit LibraryFile(const std::string& path)
    {
        std::ifstream file(path, std::ios::binary);
        bytes_.assign(std::istreambuf_iterator<char>(file), {});
    }

    template <typename Record> Record at(std::size_t offset) const
    {
        Record record {};
        if (offset + sizeof record <= bytes_.size())
            std::memcpy(&record, bytes_.data() + offset, sizeof record);
        else
            ADD_FAILURE() << "the file ends before " << offset;
        return record;
    }

    std::string text(std::size_t offset) const
    {
        if (offset >= bytes_.size())
            return {};
        const char* const start = bytes_.data() + offset;
        return {start, strnlen(start, bytes_.size() - offset)};
    }

private:
    std::vector<char> bytes_;
};
