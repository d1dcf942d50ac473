#include "QORPlatform/toolkit/QORIcons.h"
#include "QORPlatform/toolkit/QORProgress.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <utility>

namespace {

/// Writes down what is told, and cancels at a report.
class Told : public QORProgress {
public:
    Told() { SetCurrent(this); }
    ~Told() override { SetCurrent(nullptr); }
    void Begun() override { text_ += "begun "; }
    void Ended() override { text_ += "ended "; }
    void Report(long done, long total) override {
        text_ += std::to_string(done) + "/" + std::to_string(total) + " ";
        --left_;
    }
    bool IsCancelled() override { return left_ == 0; }

    std::string take() { return std::exchange(text_, ""); }
    int left_ = 2;

private:
    std::string text_;
};

void work(int steps, long total) {
    const QORWork outer(total);
    for (int i = 0; i < steps; ++i) {
        const QORWork inner(7);
        QORWork::Step();
    }
}

TEST(Progress, IsToldOfTheOutermostWorkAndMayCancelIt) {
    work(5000, 0);
    Told told;
    QORWork::Step();
    work(1500, 2000);
    EXPECT_EQ(told.take(), "begun 1024/2000 ended ");
    EXPECT_THROW(work(1500, 0), QORCancelled);
    EXPECT_EQ(told.take(), "begun 1024/0 ended ");
    work(1, 0);
    EXPECT_EQ(told.take(), "begun ended ");
}

TEST(Icons, ComeFromAFolderByTheirName) {
    const std::string folder = testing::TempDir();
    const std::string drawing = "<svg xmlns=\"http://www.w3.org/2000/svg\"/>\n";
    std::ofstream(folder + "/I_Test.svg") << drawing;
    QORIconFolder icons(folder);
    EXPECT_EQ(icons.GetDrawing("I_Test"), drawing);
    EXPECT_EQ(icons.GetDrawing("I_Other"), "");
    EXPECT_EQ(icons.GetDrawing("./I_Test"), "");
    EXPECT_EQ(icons.GetDrawing(""), "");
    EXPECT_EQ(QORIconResource::GetCurrent(), nullptr);
}

} // namespace
