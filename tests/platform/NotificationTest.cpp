#include "notification/QOREventSubscriber.h"
#include "notification/QORSPPActivityNotification.h"
#include "notification/QORSPPActivityNotificationDispatcher.h"

#include "framework/QORVar.h"

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

    long listenTo(QOREventSubscriber& publisher, const char* event = "change") {
        handle_ = AddCallback(this, &publisher, event, &Listener::onEvent, &clientData_);
        return handle_;
    }
    void onEvent(const char* event, void* publisher, QORNotification* notification, void* clientData, long handle) {
        event_ = event;
        publisher_ = publisher;
        notification_ = notification;
        clientDataMatches_ = clientData == &clientData_ && handle == handle_;
        told_ += letter_;
        // Copied, since it may end this object.
        if (const auto reaction = reaction_) {
            reaction();
        }
    }
    void reactWith(std::function<void()> reaction) { reaction_ = std::move(reaction); }

    long handle_ = kQORNoCallback;
    std::string event_;
    void* publisher_ = nullptr;
    QORNotification* notification_ = nullptr;
    bool clientDataMatches_ = false;

private:
    char letter_;
    std::string& told_;
    std::function<void()> reaction_;
    int clientData_ = 0;
};

/// A publisher and three listeners A, B, C, subscribed in this order.
class Publishing : public testing::Test {
protected:
    Publishing() {
        for (Listener* listener : {a_.get(), b_.get(), c_.get()}) {
            listener->listenTo(*publisher_);
        }
    }
    void publish() { publisher_->Publish("change", nullptr); }

    std::string told_;
    std::unique_ptr<QOREventSubscriber> publisher_ = std::make_unique<QOREventSubscriber>();
    std::unique_ptr<Listener> a_ = std::make_unique<Listener>('A', told_);
    std::unique_ptr<Listener> b_ = std::make_unique<Listener>('B', told_);
    std::unique_ptr<Listener> c_ = std::make_unique<Listener>('C', told_);
};

TEST_F(Publishing, TellsInTheOrderOfSubscribingWithAllArguments) {
    const auto notification = QORVar<QORNotification>::Adopt(new QORSPPActivityNotification(17));
    publisher_->Publish("change", notification.Get());
    EXPECT_EQ(told_, "ABC");
    EXPECT_EQ(b_->event_, "change");
    EXPECT_EQ(b_->publisher_, static_cast<void*>(publisher_.get()));
    EXPECT_EQ(b_->notification_, notification.Get());
    EXPECT_TRUE(b_->clientDataMatches_);
}

TEST_F(Publishing, TellsNobodyOfAnotherEvent) {
    publisher_->Publish("other", nullptr);
    EXPECT_EQ(told_, "");
}

TEST_F(Publishing, EndsASubscriptionOnceAndOnItsPublisherOnly) {
    QOREventSubscriber other;
    EXPECT_LT(other.RemoveCallback(publisher_.get(), b_->handle_), 0);
    EXPECT_LT(other.RemoveCallback(&other, b_->handle_), 0);
    EXPECT_EQ(publisher_->RemoveCallback(publisher_.get(), b_->handle_), QOR_OK);
    EXPECT_LT(publisher_->RemoveCallback(publisher_.get(), b_->handle_), 0);
    EXPECT_EQ(publisher_->GetSubscriptionCount(), 2);
    publish();
    EXPECT_EQ(told_, "AC");
}

TEST_F(Publishing, HasNoHandleForHalfASubscription) {
    Listener* const nobody = nullptr;
    EXPECT_EQ(AddCallback(a_.get(), nullptr, "change", &Listener::onEvent, nullptr), kQORNoCallback);
    EXPECT_EQ(AddCallback(nobody, publisher_.get(), "change", &Listener::onEvent, nullptr), kQORNoCallback);
    EXPECT_EQ(AddCallback(a_.get(), publisher_.get(), nullptr, &Listener::onEvent, nullptr), kQORNoCallback);
    EXPECT_EQ(publisher_->GetSubscriptionCount(), 3);
}

TEST_F(Publishing, DoesNotCallWhoUnsubscribedMeanwhile) {
    a_->reactWith([this] { publisher_->RemoveCallback(publisher_.get(), b_->handle_); });
    publish();
    EXPECT_EQ(told_, "AC");
}

TEST_F(Publishing, LetsWhoSubscribesMeanwhileWaitForTheNext) {
    Listener late('D', told_);
    a_->reactWith([&] {
        if (late.handle_ == kQORNoCallback) {
            late.listenTo(*publisher_);
        }
    });
    publish();
    EXPECT_EQ(told_, "ABC");
    publish();
    EXPECT_EQ(told_, "ABCABCD");
}

TEST_F(Publishing, DeliversANestedEventAtOnce) {
    bool nested = false;
    b_->reactWith([&] {
        if (!std::exchange(nested, true)) {
            publish();
        }
    });
    publish();
    EXPECT_EQ(told_, "ABABCC");
}

TEST_F(Publishing, TellsTheRestBeforeItRaisesWhatTheFirstRaised) {
    a_->reactWith([] { throw std::runtime_error("first"); });
    b_->reactWith([] { throw std::logic_error("second"); });
    EXPECT_THROW(publish(), std::runtime_error);
    EXPECT_EQ(told_, "ABC");
}

TEST_F(Publishing, SurvivesTheEndOfSubscribers) {
    a_->reactWith([this] {
        a_.reset();
        c_.reset();
    });
    publish();
    EXPECT_EQ(told_, "AB");
    EXPECT_EQ(publisher_->GetSubscriptionCount(), 1);
}

TEST_F(Publishing, EndsWithThePublisher) {
    b_->reactWith([this] { publisher_.reset(); });
    publish();
    EXPECT_EQ(told_, "AB");
}

TEST_F(Publishing, SurvivesTheEndOfWhoTellsHimself) {
    Listener* const self = new Listener('S', told_);
    self->listenTo(*self);
    self->reactWith([self] { self->Release(); });
    self->Publish("change", nullptr);
    EXPECT_EQ(told_, "S");
}

TEST(Dispatcher, PublishesTheKindAsTheEventThatViewsSubscribeTo) {
    std::string told;
    QOREventSubscriber publisher;
    Listener view('V', told);
    int kind = 0;
    view.listenTo(publisher, QORSPPActivityNotificationDispatcher::DISPATCHER_SPP_VIEWS_CHANGE());
    view.reactWith([&] {
        ASSERT_EQ(view.notification_->IsAKindOf("QORSPPActivityNotification"), 1);
        kind = dynamic_cast<QORSPPActivityNotification*>(view.notification_->GetImpl(0))->GetNotificationKind();
    });
    QORSPPActivityNotificationDispatcher::Dispatch(publisher, 29);
    EXPECT_EQ(kind, 29);
}

TEST(Notification, IsAKindOfItsClassAndItsBasesOnly) {
    QORSPPActivityNotification change(3);
    QORNotification plain;
    EXPECT_STREQ(change.IsA(), "QORSPPActivityNotification");
    EXPECT_EQ(change.IsAKindOf("QORNotification"), 1);
    EXPECT_EQ(plain.IsAKindOf("QORSPPActivityNotification"), 0);
}

/// A publisher that wants to know whether anybody listens.
class LazyPublisher : public QOREventSubscriber {
public:
    std::string counts_;

protected:
    void SubscriptionsChanged() override { counts_ += std::to_string(GetSubscriptionCount()); }
};

TEST(Publisher, IsToldOfComingAndGoingSubscribers) {
    std::string told;
    LazyPublisher publisher;
    Listener first('A', told);
    first.listenTo(publisher);
    {
        Listener second('B', told);
        second.listenTo(publisher);
    }
    publisher.RemoveCallback(&publisher, first.handle_);
    EXPECT_EQ(publisher.counts_, "1210");
}

} // namespace
