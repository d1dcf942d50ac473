#include "QORPlatform/notification/QOREventSubscriber.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

namespace {

/// Writes its letter into a common text whenever it is told something, and does what the test wants then.
class Listener : public QOREventSubscriber {
public:
    Listener(char letter, std::string& told) : letter_(letter), told_(told) {}

    void listenTo(QOREventSubscriber& publisher) {
        handle_ = AddCallback(this, &publisher, "change", &Listener::onEvent, &clientData_);
        listensTo_ = &publisher;
    }
    void onEvent(const char* event, void* publisher, QORNotification* notification, void* clientData, long handle) {
        EXPECT_STREQ(event, "change");
        EXPECT_EQ(publisher, static_cast<void*>(listensTo_));
        EXPECT_TRUE(clientData == &clientData_ && handle == handle_);
        notification_ = notification;
        told_ += letter_;
        // Copied, since it may end this object.
        if (const auto reaction = reaction_) {
            reaction();
        }
    }

    void reactWith(std::function<void()> reaction) { reaction_ = std::move(reaction); }

    long handle_ = kQORNoCallback;
    QORNotification* notification_ = nullptr;

private:
    std::function<void()> reaction_;
    char letter_;
    std::string& told_;
    QOREventSubscriber* listensTo_ = nullptr;
    int clientData_ = 0;
};

/// A publisher that notes how many listen each time this changes.
class Publisher : public QOREventSubscriber {
public:
    std::string counts_;

protected:
    void SubscriptionsChanged() override { counts_ += std::to_string(GetSubscriptionCount()); }
};

/// A publisher and three listeners A, B, C, subscribed in this order.
class Publishing : public testing::Test {
protected:
    Publishing() {
        for (Listener* listener : {a_.get(), b_.get(), c_.get()}) {
            listener->listenTo(*publisher_);
        }
    }
    /// Who was told, in order.
    std::string publish(const char* event = "change", QORNotification* notification = nullptr) {
        publisher_->Publish(event, notification);
        return std::exchange(told_, "");
    }

    std::string told_;
    std::unique_ptr<Publisher> publisher_ = std::make_unique<Publisher>();
    std::unique_ptr<Listener> a_ = std::make_unique<Listener>('A', told_);
    std::unique_ptr<Listener> b_ = std::make_unique<Listener>('B', told_);
    std::unique_ptr<Listener> c_ = std::make_unique<Listener>('C', told_);
};

TEST_F(Publishing, TellsInTheOrderOfSubscribingAndOfThatEventOnly) {
    QORNotification notification;
    EXPECT_EQ(publish("change", &notification), "ABC");
    EXPECT_EQ(b_->notification_, &notification);
    EXPECT_EQ(publish("other"), "");
}

TEST_F(Publishing, BeginsNoHalfSubscriptionAndEndsEachOnceOnItsPublisherOnly) {
    QOREventSubscriber other;
    Listener* const nobody = nullptr;
    EXPECT_EQ(AddCallback(a_.get(), nullptr, "change", &Listener::onEvent, nullptr), kQORNoCallback);
    EXPECT_EQ(AddCallback(nobody, publisher_.get(), "change", &Listener::onEvent, nullptr), kQORNoCallback);
    EXPECT_EQ(AddCallback(a_.get(), publisher_.get(), nullptr, &Listener::onEvent, nullptr), kQORNoCallback);
    EXPECT_LT(other.RemoveCallback(publisher_.get(), b_->handle_), 0);
    EXPECT_LT(other.RemoveCallback(&other, b_->handle_), 0);
    EXPECT_EQ(publisher_->RemoveCallback(publisher_.get(), b_->handle_), QOR_OK);
    EXPECT_LT(publisher_->RemoveCallback(publisher_.get(), b_->handle_), 0);
    EXPECT_EQ(publish(), "AC");
    c_.reset();
    EXPECT_EQ(publisher_->counts_, "12321");
}

TEST_F(Publishing, DoesNotCallWhoUnsubscribedMeanwhile) {
    a_->reactWith([this] { publisher_->RemoveCallback(publisher_.get(), b_->handle_); });
    EXPECT_EQ(publish(), "AC");
}

TEST_F(Publishing, LetsWhoSubscribesMeanwhileWaitForTheNext) {
    Listener late('D', told_);
    a_->reactWith([&] {
        if (late.handle_ == kQORNoCallback) {
            late.listenTo(*publisher_);
        }
    });
    EXPECT_EQ(publish(), "ABC");
    EXPECT_EQ(publish(), "ABCD");
}

TEST_F(Publishing, DeliversANestedEventAtOnce) {
    b_->reactWith([this] {
        b_->reactWith(nullptr);
        publisher_->Publish("change", nullptr);
    });
    EXPECT_EQ(publish(), "ABABCC");
}

TEST_F(Publishing, TellsTheRestBeforeItRaisesWhatTheFirstRaised) {
    a_->reactWith([] { throw std::runtime_error("first"); });
    b_->reactWith([] { throw std::logic_error("second"); });
    EXPECT_THROW(publish(), std::runtime_error);
    EXPECT_EQ(told_, "ABC");
}

TEST_F(Publishing, SurvivesTheEndOfSubscribersAndOfThePublisher) {
    a_->reactWith([this] {
        a_.reset();
        c_.reset();
    });
    EXPECT_EQ(publish(), "AB");
    EXPECT_EQ(publisher_->GetSubscriptionCount(), 1);
    c_ = std::make_unique<Listener>('C', told_);
    c_->listenTo(*publisher_);
    b_->reactWith([this] { publisher_.reset(); });
    EXPECT_EQ(publish(), "B");
}

TEST_F(Publishing, SurvivesTheEndOfWhoTellsHimself) {
    Listener* const self = new Listener('S', told_);
    self->listenTo(*self);
    self->reactWith([self] { self->Release(); });
    self->Publish("change", nullptr);
    EXPECT_EQ(told_, "S");
}

TEST_F(Publishing, RunsDelayedCallsOnceTheOutermostGroupEnds) {
    const auto delay = [this](Listener& listener, char letter) {
        publisher_->CallAfterGroup(listener, [this, letter] { told_ += letter; });
    };
    delay(*a_, '1');
    publisher_->InGroup([&] {
        delay(*a_, '2');
        delay(*b_, '3');
        publisher_->InGroup([&] { delay(*c_, '4'); });
        publisher_->Publish("change", nullptr);
        b_.reset();
    });
    EXPECT_EQ(std::exchange(told_, ""), "1ABC24");
    publisher_->BeginGroup();
    publisher_->CallAfterGroup(*a_, [] { throw std::runtime_error("first"); });
    delay(*a_, '5');
    EXPECT_THROW(publisher_->EndGroup(), std::runtime_error);
    publisher_->EndGroup();
    EXPECT_FALSE(publisher_->IsInGroup());
    publisher_->InGroup([&] {
        delay(*a_, '6');
        publisher_.reset();
    });
    EXPECT_EQ(told_, "5");
}

} // namespace
