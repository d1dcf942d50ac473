#include "QORPlatform/text/QORString.h"
#include "QORPlatform/text/QORUnicodeString.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <utility>

namespace {

TEST(UnicodeString, CutsBetweenCharactersOnly) {
    const std::tuple<std::string, int, int, const char*> cases[] = {
        {"abcdef", 1, 2, "ab"},
        {"abcdef", 5, 9, "ef"},
        {"abcdef", 0, 2, "a"},
        {"abcdef", -3, 2, ""},
        {"abcdef", -2147483647 - 1, -2147483647 - 1, ""},
        {"abcdef", 7, 1, ""},
        {"abcdef", 2, 0, ""},
        {"abcdef", 2, -1, ""},
        {"", 1, 5, ""},
        {"Türgröße", 2, 3, "ürg"},
        {"a€𝄞b", 2, 2, "€𝄞"},
        {"\xFFgh", 1, 1, "\xFF"},
    };
    for (const auto& [text, first, count, part] : cases) {
        EXPECT_STREQ(QORUnicodeString(text).SubString(first, count), part)
            << text << " from " << first << ", " << count;
    }
}

TEST(UnicodeString, CountsCharactersNotBytes) {
    const std::pair<const char*, int> cases[] = {{nullptr, 0}, {"", 0},   {"abc", 3},
                                                 {"Größe", 5}, {"€𝄞", 2}, {"\xFF\x80g", 3}};
    for (const auto& [text, length] : cases) {
        EXPECT_EQ(QORUnicodeString(text).GetLengthInChar(), length) << (text ? text : "null");
    }
}

TEST(UnicodeString, ComparesToTwoOrZero) {
    EXPECT_EQ(QORUnicodeString("Weld").Compare("Weld"), 2);
    EXPECT_EQ(QORUnicodeString("Weld").Compare("weld"), 0);
    EXPECT_EQ(QORUnicodeString("Weld").Compare("Weld "), 0);
    EXPECT_EQ(QORUnicodeString().Compare(""), 2);
}

TEST(UnicodeString, RaisesPlainLettersOnly) {
    QORUnicodeString text("azAZ19 ößé");
    text.ToUpper();
    EXPECT_STREQ(text, "AZAZ19 ößé");
}

TEST(UnicodeString, WritesNumbersByTheirFormat) {
    const std::string wide = std::string(199, ' ') + "7";
    const std::tuple<int, const char*, const char*> cases[] = {
        {0, "%d", "0"}, {-2147483647 - 1, "%d", "-2147483648"}, {7, "%03d", "007"}, {7, "%200d", wide.c_str()}};
    for (const auto& [number, format, written] : cases) {
        QORUnicodeString text("before");
        text.BuildFromNum(number, format);
        EXPECT_STREQ(text, written);
    }
}

TEST(NarrowString, KeepsItsBytes) {
    EXPECT_EQ(QORString("\xFFg").GetLength(), 2);
    EXPECT_EQ(QORString(nullptr), "");
    EXPECT_FALSE(QORString("a") == QORString("b"));
}

} // namespace
