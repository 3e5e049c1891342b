#include "model/PlixJsonReals.h"

#include <gtest/gtest.h>

#include <json/reader.h>

#include <random>

namespace {

TEST(PlixJsonReals, HaveNoDecimalPoint)
{
    const struct {
        const char* json;
        const char* rewritten;
    } rows[] = {
        {"2.5", "25e-1"},
        {"-2.5", "-25e-1"},
        {"0.0", "00e-1"},
        {"-0.125", "-0125e-3"},
        {"1.", "1e0"},
        {"-.5", "-5e-1"},
        {"2.50e3", "250e1"},
        {"2.5E+3", "25e2"},
        {"2.5e-3", "25e-4"},
        {"1.5e0000000000000000000001", "15e0"},
        {"[1.5,2.5]", "[15e-1,25e-1]"},
        {R"({"a":1.5})", R"({"a":15e-1})"},
        {R"("1.5" : 1.5)", R"("1.5" : 15e-1)"},
        {R"("\"1.5" : 1.5)", R"("\"1.5" : 15e-1)"},
        {R"("\\" : 1.5)", R"("\\" : 15e-1)"},
        {"/* 1.5 */ 1.5", "/* 1.5 */ 15e-1"},
        {"/*\" 1.5 */ 1.5", "/*\" 1.5 */ 15e-1"},
        {"/**/1.5/*/1.5*/", "/**/15e-1/*/1.5*/"},
        {"// 1.5\n1.5", "// 1.5\n15e-1"},
        {"// 1.5\r1.5", "// 1.5\r15e-1"},
    };
    for (const auto& row : rows) {
        EXPECT_TRUE(plix::MayHaveReals(row.json)) << row.json;
        EXPECT_EQ(plix::WithoutDecimalPoints(row.json), row.rewritten) << row.json;
    }
}

TEST(PlixJsonReals, AreNotInStringsAndComments)
{
    for (const char* json : {"", "12", "-12e5", R"("1.5")", R"("\"1.5")", R"("\\1.5")", R"("1.5)",
                             "/*1.5*/", "/*1.5", "//1.5", R"({"1.5": [1, "2.5"]} // 1.5)"}) {
        EXPECT_FALSE(plix::MayHaveReals(json)) << json;
        EXPECT_EQ(plix::WithoutDecimalPoints(json), json);
    }
}

TEST(PlixJsonReals, EverythingElseStaysAsItIs)
{
    for (const char* json : {"",       " ",       "12",        "-12", "1e5", "25e-1", "-",  "1e",
                             "\"1.5",  "\"1.5\\", "\"1.5\\\"", "\"",  "/",   "/ ",    "/*", "/*1.5",
                             "/*1.5*", "//1.5",   "\".\"",     ".",   "...", "a.b"})
        EXPECT_EQ(plix::WithoutDecimalPoints(json), json);
    const std::string zeros("1\0.5\0", 5);
    EXPECT_EQ(plix::WithoutDecimalPoints(zeros), zeros);
}

// The parser's result for a text: whether it has read all of it, and the value.
std::string understood(const std::string& json)
{
    Json::Value value;
    const bool isComplete = Json::Reader().parse(json, value);
    return (isComplete ? "all of " : "a part of ") + value.toStyledString();
}

void expectSameMeaning(const std::string& json)
{
    const std::string rewritten = plix::WithoutDecimalPoints(json);
    EXPECT_TRUE(rewritten == json || plix::MayHaveReals(json)) << json;
    EXPECT_EQ(understood(rewritten), understood(json)) << json;
}

TEST(PlixJsonReals, BadNumbersStayBadAtTheSamePlace)
{
    for (const char* number : {"1.5e",
                               "1.5e+",
                               "1.5e-",
                               "1.5e+-3",
                               "1.5e--3",
                               "1.5.5",
                               "1.5-3",
                               "1.5e5.5",
                               "1.5e5e5",
                               "-.",
                               "-.e5",
                               "-",
                               "--1.5",
                               "+1.5",
                               ".5",
                               "1.+3",
                               "1..5",
                               "1.5x",
                               "1.5\"a\"",
                               "1.5e999",
                               "-1.5e999",
                               "1.5e99999999999999999999999999",
                               "1.5e-99999999999999999999999999"})
        expectSameMeaning(std::string("[1, ") + number + ", 2.5, 3]");
}

TEST(PlixJsonReals, LongNumbersKeepTheirValue)
{
    const std::string zeros(200, '0');
    for (const std::string& number :
         {"0." + zeros + "1e201", "1" + zeros + ".5e-200", "1." + zeros + "e2",
          "0." + std::string(200, '9'), "2." + zeros + "1", "1.5e" + zeros + "2"})
        expectSameMeaning('[' + number + ']');

    // The C library of the system determines the value of these.
    const std::string many(100'000, '0');
    EXPECT_EQ(plix::WithoutDecimalPoints("0." + many + "1e100001"), "0" + many + "1e0");
    EXPECT_EQ(plix::WithoutDecimalPoints("1" + many + ".5e-100000"), "1" + many + "5e-100001");
    EXPECT_EQ(plix::WithoutDecimalPoints("1.5e" + many + "2"), "15e1");
    EXPECT_EQ(plix::WithoutDecimalPoints("1.5e2147483649"), "15e2147483648");
}

TEST(PlixJsonReals, RandomTextKeepsItsMeaning)
{
    constexpr std::string_view kPieces[] = {
        "{",  "}",     "[",      "]",   ",",      ":",       "\"",   "\\",   "/",  "*",  "//", "/*",
        "*/", "\n",    "\r",     " ",   ".",      "-",       "+",    "e",    "E",  "1",  "0",  "25",
        "a",  "\"a\"", "\"a\":", "1.5", "2.25e2", "-0.5e-3", "true", "null", "1.", "9.9"};
    std::mt19937 random(7);
    for (int i = 0; i < 20'000; ++i) {
        std::string json(random() % 2 == 0 ? "[" : R"({"a": )");
        for (auto length = random() % 12; length > 0; --length)
            json += kPieces[random() % std::size(kPieces)];
        expectSameMeaning(json + (random() % 2 == 0 ? "]" : "}"));
        if (HasFailure())
            break;
    }
}

} // namespace
