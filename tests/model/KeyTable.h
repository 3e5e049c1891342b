#pragma once

#include "model/ReadCard.h"
#include "support/ExpectedLog.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

// Checks a component with the table of its keys: its defaults, that each key sets
// its own field, and that the keys are read in order.
namespace plix::test {

template <typename Target> struct KeyRow {
    std::string key;
    std::string absent; // the field as text, without the key
    std::string good; // JSON
    std::string stored; // the field after that
    std::string bad; // JSON that fails the component; empty if there is none
    std::function<std::string(const Target&)> field;
};

template <typename Target> struct KeyTable {
    std::string operation;
    std::vector<KeyRow<Target>> rows;
    // Reads a component with these members, each followed by a comma.
    std::function<std::shared_ptr<const Target>(const std::string& members)> read;
};

template <typename Target> std::string member(const KeyRow<Target>& row, const std::string& value)
{
    return '"' + row.key + "\": " + value + ", ";
}

template <typename Target>
void expectStored(const KeyTable<Target>& table, const Target* target,
                  const std::set<std::size_t>& stored)
{
    ASSERT_NE(target, nullptr);
    for (std::size_t i = 0; i < table.rows.size(); ++i) {
        const KeyRow<Target>& row = table.rows[i];
        EXPECT_EQ(row.field(*target), stored.count(i) ? row.stored : row.absent) << row.key;
    }
}

template <typename Target> void expectDefaultsWithoutKeys(const KeyTable<Target>& table)
{
    expectStored(table, table.read("").get(), {});
}

template <typename Target> void expectEachKeyInItsField(const KeyTable<Target>& table)
{
    for (std::size_t i = 0; i < table.rows.size(); ++i) {
        SCOPED_TRACE(table.rows[i].key);
        const auto target = table.read(member(table.rows[i], table.rows[i].good));
        expectStored(table, target.get(), {i});
    }
}

// Breaks each key in turn: the keys before it are read, the keys after it are not.
template <typename Target> void expectReadingOrder(const KeyTable<Target>& table)
{
    for (std::size_t broken = 0; broken < table.rows.size(); ++broken) {
        if (table.rows[broken].bad.empty())
            continue;
        SCOPED_TRACE(table.rows[broken].key);
        std::string members;
        std::set<std::size_t> before;
        for (std::size_t i = 0; i < table.rows.size(); ++i) {
            const KeyRow<Target>& row = table.rows[i];
            members += member(row, i == broken ? row.bad : row.good);
            if (i < broken)
                before.insert(i);
        }
        const auto target = table.read(members);
        expectOneLogLine(table.operation);
        expectStored(table, target.get(), before);
    }
}

template <typename Target> void expectTable(const KeyTable<Target>& table)
{
    expectDefaultsWithoutKeys(table);
    expectEachKeyInItsField(table);
    expectReadingOrder(table);
}

// A row for text that is stored unchanged.
template <typename Target>
KeyRow<Target> textRow(const std::string& key, std::string (Target::*getter)() const,
                       const std::string& absent = {})
{
    return {key,        absent, "\"a " + key + '"',
            "a " + key, "7",    [getter](const Target& target) {
                return (target.*getter)(); }};
}

// The keys that box, text, image, icon and button have in common.
template <typename Target> std::vector<KeyRow<Target>> commonRows()
{
    return {{"flex", "default", "7", "7", R"("7")",
             [](const Target& item) {
                 return item.IsGrowDefault() ? "default" : std::to_string(item.GetGrow());
             }},
            textRow<Target>("margin", &Target::GetMargin),
            textRow<Target>("position", &Target::GetPosition, "relative"),
            textRow<Target>("offsetStart", &Target::GetOffsetStart),
            textRow<Target>("offsetEnd", &Target::GetOffsetEnd),
            textRow<Target>("offsetTop", &Target::GetOffsetTop),
            textRow<Target>("offsetBottom", &Target::GetOffsetBottom)};
}

// A row for "action". An action that fails does not fail the component.
template <typename Target> KeyRow<Target> actionRow()
{
    return {"action", "none", R"({"label": "Go"})", "Go", "", [](const Target& item) {
                return item.GetAction() ? item.GetAction()->label : "none";
            }};
}

inline std::string joined(const PlixLanguageMap& texts)
{
    std::string all;
    for (const auto& [code, text] : texts.texts)
        all.append(code).append("=").append(text).append(";");
    return all;
}

template <typename Target>
std::vector<KeyRow<Target>> operator+(std::vector<KeyRow<Target>> left,
                                      const std::vector<KeyRow<Target>>& right)
{
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

template <typename Target>
KeyTable<Target> componentTable(const std::string& word, const std::string& operation,
                                std::vector<KeyRow<Target>> rows)
{
    return {operation, std::move(rows), [word](const std::string& members) {
                return readComponent<Target>('{' + members + "\"type\": \"" + word + "\"}");
            }};
}

} // namespace plix::test
