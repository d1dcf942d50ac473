#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"
#include "QORPlatform/collections/QORListValQORUnicodeString.h"
#include "QORPlatform/collections/QORRawCollPV.h"
#include "QORPlatform/framework/QORLargeMemory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <new>
#include <random>
#include <string>
#include <vector>

namespace {

std::string drawn(const QORRawCollint& list) {
    std::string text;
    for (const int value : list) {
        text += std::to_string(value);
    }
    return text;
}

TEST(RawCollection, RemovesTheFirstOfAValueAndNothingOutside) {
    QORRawCollint list;
    for (const int value : {3, 4, 5, 4}) {
        list.Append(value);
    }
    EXPECT_EQ(list.RemoveValue(7), 0);
    EXPECT_EQ(list.RemoveValue(4), 2);
    EXPECT_EQ(drawn(list), "354");
    for (const int position : {-1, 0, 4}) {
        EXPECT_EQ(list[position], 0);
        list.RemovePosition(position);
        list.Replace(position, 9);
    }
    EXPECT_EQ(drawn(list), "354");
    list.RemovePosition(2);
    list.Replace(2, 9);
    EXPECT_EQ(drawn(list), "39");
    list.RemoveAll();
    EXPECT_EQ(list.Size(), 0);
    EXPECT_EQ(QORRawCollPV()[1], nullptr);
}

TEST(LargeMemory, HoldsAnArrayThatGrowsBeyondAHugePage) {
    std::vector<std::size_t, QORLargeAllocator<std::size_t>> numbers;
    for (std::size_t number = 0; number < QORLargeMemory::kHugePage; ++number) {
        numbers.push_back(number);
    }
    for (std::size_t number = 0; number < numbers.size(); ++number) {
        ASSERT_EQ(numbers[number], number);
    }
    QORLargeMemory block(QORLargeMemory::kHugePage + 1);
    EXPECT_GT(block.GetSize(), QORLargeMemory::kHugePage);
    *(block.GetEnd() - 1) = std::byte{1};
    const QORLargeMemory taken(std::move(block));
    EXPECT_EQ(*(taken.GetEnd() - 1), std::byte{1});
#ifndef __SANITIZE_ADDRESS__ // which ends the process
    EXPECT_THROW(QORLargeMemory(std::size_t{1} << 60U), std::bad_alloc);
#endif
}

TEST(Few, EqualsAVector) {
    QORBaseUnknown object;
    std::mt19937 random(1);
    for (int round = 0; round < 500; ++round) {
        QORFew<QORBaseUnknown_var, 2> few;
        std::vector<QORBaseUnknown_var> plain;
        for (int step = 0; step < 20; ++step) {
            const std::size_t place = plain.empty() ? 0 : random() % plain.size();
            switch (random() % 6) {
            case 0:
                few = QORFew<QORBaseUnknown_var, 2>(few);
                break;
            case 1:
                few = QORFew<QORBaseUnknown_var, 2>(std::move(few));
                break;
            case 2:
                if (!plain.empty()) {
                    few.erase(few.begin() + place);
                    plain.erase(plain.begin() + static_cast<std::ptrdiff_t>(place));
                }
                break;
            default:
                few.push_back(random() % 2 == 0 ? QORBaseUnknown_var(&object) : QORBaseUnknown_var());
                plain.push_back(few[few.size() - 1]);
            }
            ASSERT_TRUE(std::equal(few.begin(), few.end(), plain.begin(), plain.end()));
        }
        few.clear();
        plain.clear();
        ASSERT_TRUE(few.empty());
        ASSERT_EQ(object.GetReferenceCount(), 1);
    }
}

TEST(HandleList, CountsOnWhatIsInIt) {
    QORBaseUnknown one;
    const QORBaseUnknown_var object(&one);
    const auto other = QORBaseUnknown_var::Adopt(new QORBaseUnknown());
    QORListValQORBaseUnknown_var list;
    for (const auto& entry : {object, other, object}) {
        list.Append(entry);
    }
    const QORListValQORBaseUnknown_var copy = list;
    EXPECT_EQ(one.GetReferenceCount(), 6);
    EXPECT_EQ(list.Locate(object, 2), 3);
    EXPECT_EQ(list.Locate(object, 4), 0);
    EXPECT_EQ(list.RemoveValue(other), 2);
    EXPECT_EQ(list.RemoveValue(other), 0);
    list.RemovePosition(1);
    EXPECT_EQ(list.Size(), 1);
    EXPECT_EQ(list[2], nullptr);
    EXPECT_EQ(one.GetReferenceCount(), 5);
    EXPECT_EQ(copy.Size(), 3);
}

/// Position of the text in the model from a position on, 0 when it isn't there.
int locate(const std::vector<std::string>& model, const std::string& text, int from) {
    const auto begin = model.begin() + std::min<std::ptrdiff_t>(from - 1, std::ssize(model));
    const auto place = std::find(begin, model.end(), text);
    return place == model.end() ? 0 : static_cast<int>(place - model.begin()) + 1;
}

TEST(TextList, FindsTheSameWithAndWithoutItsIndex) {
    std::mt19937 random(7);
    QORListValQORUnicodeString list;
    std::vector<std::string> model;
    for (int step = 0; step < 4000; ++step) {
        const std::string text = std::to_string(random() % 60);
        const QORUnicodeString entry(text);
        const int position = static_cast<int>(random() % 50) + 1;
        const int from = random() % 2 == 0 ? 1 : position;
        ASSERT_EQ(list.Locate(entry, from), locate(model, text, from)) << "step " << step;
        const auto deed = random() % 6;
        int removed = position <= std::ssize(model) ? position : 0;
        if (deed == 0) {
            list.RemovePosition(position);
        } else if (deed == 1) {
            list.RemovePositionUnordered(position);
            if (removed > 0) {
                std::swap(model[position - 1], model.back());
                removed = static_cast<int>(model.size());
            }
        } else if (deed == 2) {
            removed = locate(model, text, 1);
            ASSERT_EQ(list.RemoveValue(entry), removed) << "step " << step;
        } else {
            list.Append(entry);
            model.push_back(text);
            removed = 0;
        }
        if (removed > 0) {
            model.erase(model.begin() + removed - 1);
        }
    }
    ASSERT_EQ(list.Size(), std::ssize(model));
    EXPECT_STREQ(list[0], "");
    EXPECT_STREQ(list[list.Size()], model.back().c_str());
}

} // namespace
