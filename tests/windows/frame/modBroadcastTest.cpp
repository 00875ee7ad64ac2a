#include "windows/frame/modBroadcast.h"

#include <stdexcept>

#include "controls/forms/TestForm.h"
#include "support/Fault.h"
#include "windows/frame/Openers.h"

using namespace neb;
using namespace neb::harness;

namespace {

class ReceivingForm : public TestForm, public ChangeReceiver {
  public:
    int Received = 0;
    QString ObjectType, EventType;
    EventKeys Keys;
    std::function<void()> OnReceive;

    void ReceiveEvent(const QString& Object, const QString& Event, const EventKeys& Data) override {
        ++Received;
        ObjectType = Object;
        EventType = Event;
        Keys = Data;
        if (OnReceive) OnReceive();
    }
};

struct BroadcastTest : ::testing::Test {
    NoFormsLeft Clean;
    std::shared_ptr<ReceivingForm> First = NewForm<ReceivingForm>(),
                                   Second = NewForm<ReceivingForm>(),
                                   Third = NewForm<ReceivingForm>();
    std::shared_ptr<TestForm> Deaf = NewForm<TestForm>();

    void SetUp() override {
        First->Load();
        Deaf->Load();
        Second->Load();
        Third->Load();
    }
    static void Announce(const QWidget* Sender) {
        BroadcastEvent(QStringLiteral("Album"), QStringLiteral("Add Slides"), Sender, {3, 17});
    }
    std::vector<int> Counts() const { return {First->Received, Second->Received, Third->Received}; }
};

}  // namespace

TEST_F(BroadcastTest, ReachesEveryOtherFormButNotItsSender) {
    Announce(Second.get());
    EXPECT_EQ((std::vector<int>{1, 0, 1}), Counts());
    EXPECT_EQ(u"Album", First->ObjectType);
    EXPECT_EQ(u"Add Slides", First->EventType);
    EXPECT_EQ((EventKeys{3, 17}), Third->Keys);
}

TEST_F(BroadcastTest, FromAModuleReachesAll) {
    Announce(nullptr);
    EXPECT_EQ((std::vector<int>{1, 1, 1}), Counts());
}

TEST_F(BroadcastTest, FromAFormThatReceivesNothingReachesAll) {
    Announce(Deaf.get());
    EXPECT_EQ((std::vector<int>{1, 1, 1}), Counts());
}

TEST_F(BroadcastTest, GoesInTheOrderOfTheForms) {
    std::vector<int> Order;
    First->OnReceive = [&] { Order.push_back(1); };
    Second->OnReceive = [&] { Order.push_back(2); };
    Third->OnReceive = [&] { Order.push_back(3); };
    Announce(nullptr);
    EXPECT_EQ((std::vector<int>{1, 2, 3}), Order);
}

TEST_F(BroadcastTest, AReceiverThatFailsDoesNotStopTheWalk) {
    First->OnReceive = [] { throw Fault(QStringLiteral("broken")); };
    Second->OnReceive = [] { throw std::out_of_range("no such key"); };
    EXPECT_NO_THROW(Announce(nullptr));
    EXPECT_EQ((std::vector<int>{1, 1, 1}), Counts());
}

TEST_F(BroadcastTest, FormsThatAreNotLoadedAreNotReached) {
    const auto Never = NewForm<ReceivingForm>();
    Third->Unload();
    Announce(nullptr);
    EXPECT_EQ((std::vector<int>{1, 1, 0}), Counts());
    EXPECT_EQ(0, Never->Received);
}

TEST_F(BroadcastTest, AFormThatAnEarlierReceiverHasUnloadedIsPassedOver) {
    First->OnReceive = [&] { Second->Unload(); };
    Announce(nullptr);
    EXPECT_EQ((std::vector<int>{1, 0, 1}), Counts());
}

TEST_F(BroadcastTest, AReceiverMayCloseItself) {
    Second->OnReceive = [&] { Second->Unload(); };
    Announce(nullptr);
    EXPECT_EQ((std::vector<int>{1, 1, 1}), Counts());
    EXPECT_FALSE(Second->IsLoaded());
}

TEST_F(BroadcastTest, AHiddenButLoadedFormIsReached) {
    EXPECT_FALSE(First->isVisible());
    Announce(nullptr);
    EXPECT_EQ(1, First->Received);
}

TEST(OpenersTest, IsOneTableForAllWhoseEntriesAreEmptyUntilFilled) {
    EXPECT_FALSE(TheOpeners().SlideShowMgr);
    int Album = 0;
    TheOpeners().SlideShowMgr = [&](std::int32_t AlbumID, std::int32_t) { Album = AlbumID; };
    TheOpeners().SlideShowMgr(7, 0);
    TheOpeners() = {};
    EXPECT_EQ(7, Album);
}
