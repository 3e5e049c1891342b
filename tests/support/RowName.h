#pragma once

#include <gtest/gtest.h>

#include <string>

namespace plix::test {

// Names the tests of a suite after the `name` of their rows.
template <typename Row> std::string rowName(const testing::TestParamInfo<Row>& row)
{
    return row.param.name;
}

} // namespace plix::test
