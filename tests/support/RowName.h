#pragma once

#include <gtest/gtest.h>

#include <string>

namespace plix::test {

// Names the tests of a suite after the `name` of their rows.
struct RowName {
    template <typename Row> std::string operator()(const testing::TestParamInfo<Row>& row) const
    {
        return row.param.name;
    }
};

} // namespace plix::test
