#include "collections/QORHashDico.h"
#include "collections/QORListValQORBaseUnknown_var.h"
#include "collections/QORListValQORUnicodeString.h"
#include "collections/QORRawCollPV.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

std::string drawn(const QORRawCollint& list) {
    std::string text;
    for (const int value : list) {
        text += std::to_string(value);
    }
    return text;
}

QORRawCollint listOf(const char* digits) {
    QORRawCollint list;
    for (const char* digit = digits; *digit; ++digit) {
        list.Append(*digit - '0');
    }
    return list;
}

TEST(RawCollection, RemovesTheFirstOfAValueAndSaysWhereItWas) {
    struct Case {
        const char* list;
        int value;
        int position;
        const char* left;
    };
    const Case cases[] = {{"3454", 4, 2, "354"}, {"3454", 3, 1, "454"}, {"3454", 7, 0, "3454"}, {"", 1, 0, ""}};
    for (const Case& row : cases) {
        QORRawCollint list = listOf(row.list);
        EXPECT_EQ(list.RemoveValue(row.value), row.position) << row.list;
        EXPECT_EQ(drawn(list), row.left);
    }
}

TEST(RawCollection, ReadsNullAndRemovesNothingOutside) {
    QORRawCollint list = listOf("345");
    for (const int position : {-1, 0, 4}) {
        EXPECT_EQ(list[position], 0);
        list.RemovePosition(position);
        list.Replace(position, 9);
    }
    EXPECT_EQ(drawn(list), "345");
    list.RemovePosition(2);
    list.Replace(2, 9);
    EXPECT_EQ(drawn(list), "39");
    list.RemoveAll();
    EXPECT_EQ(list.Size(), 0);
    EXPECT_EQ(QORRawCollPV()[1], nullptr);
}

TEST(HandleList, CountsOnWhatIsInIt) {
    QORBaseUnknown object;
    QORBaseUnknown other;
    QORListValQORBaseUnknown_var list;
    list.Append(QORBaseUnknown_var(&object));
    list.Append(QORBaseUnknown_var(&other));
    list.Append(QORBaseUnknown_var(&object));
    const QORListValQORBaseUnknown_var copy = list;
    EXPECT_EQ(object.GetReferenceCount(), 5);
    EXPECT_EQ(list.Locate(QORBaseUnknown_var(&object)), 1);
    EXPECT_EQ(list.Locate(QORBaseUnknown_var(&object), 2), 3);
    EXPECT_EQ(list.Locate(QORBaseUnknown_var(&object), 4), 0);
    EXPECT_EQ(list.RemoveValue(QORBaseUnknown_var(&other)), 2);
    EXPECT_EQ(list.RemoveValue(QORBaseUnknown_var(&other)), 0);
    list.RemovePosition(1);
    EXPECT_EQ(list.Size(), 1);
    EXPECT_EQ(list[2], nullptr);
    EXPECT_EQ(object.GetReferenceCount(), 4);
    EXPECT_EQ(copy.Size(), 3);
}

TEST(TextList, FindsTheSameWithAndWithoutItsIndex) {
    std::mt19937 random(7);
    QORListValQORUnicodeString list;
    std::vector<std::string> model;
    for (int step = 0; step < 4000; ++step) {
        const std::string text = std::to_string(random() % 60);
        const int position = static_cast<int>(random() % 50) + 1;
        switch (random() % 9) {
        case 8: {
            const auto place = std::find(model.begin(), model.end(), text);
            ASSERT_EQ(list.RemoveValue(QORUnicodeString(text)),
                      place == model.end() ? 0 : static_cast<int>(place - model.begin()) + 1);
            model.erase(place, place == model.end() ? place : place + 1);
            break;
        }
        case 0:
            list.RemovePosition(position);
            if (position <= static_cast<int>(model.size())) {
                model.erase(model.begin() + position - 1);
            }
            break;
        case 1:
            list.RemovePositionUnordered(position);
            if (position <= static_cast<int>(model.size())) {
                std::swap(model[position - 1], model.back());
                model.pop_back();
            }
            break;
        case 2:
        case 3: {
            const int from = random() % 2 == 0 ? 1 : position;
            const auto begin = model.begin() + std::min(from - 1, static_cast<int>(model.size()));
            const auto place = std::find(begin, model.end(), text);
            const int expected = place == model.end() ? 0 : static_cast<int>(place - model.begin()) + 1;
            ASSERT_EQ(list.Locate(QORUnicodeString(text), from), expected) << "step " << step;
            break;
        }
        default:
            list.Append(QORUnicodeString(text));
            model.push_back(text);
        }
    }
    ASSERT_EQ(list.Size(), static_cast<int>(model.size()));
    EXPECT_STREQ(list[0], "");
    EXPECT_STREQ(list[list.Size()], model.back().c_str());
}

TEST(Dictionary, KeepsTheFirstEntryAndTheOrder) {
    int values[3] = {};
    QORHashDico dico(10);
    dico.Insert("b", &values[0]);
    dico.Insert("a", &values[1]);
    dico.Insert("b", &values[2]);
    EXPECT_EQ(dico.Size(), 2);
    EXPECT_EQ(dico.Locate("b"), &values[0]);
    EXPECT_EQ(dico.Locate("B"), nullptr);
    int position = 0;
    int visited = 0;
    EXPECT_EQ(dico.NextItem(position, visited), &values[0]);
    EXPECT_EQ(dico.NextItem(position, visited), &values[1]);
    EXPECT_EQ(dico.NextItem(position, visited), nullptr);
    dico.RemoveAll();
    EXPECT_EQ(dico.Locate("b"), nullptr);
}

} // namespace
