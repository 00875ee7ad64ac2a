#include "harness/ScriptedBoxes.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace neb::harness {

namespace {

// By what these offer nothing can go.
bool IsHarmless(const QString& Text) {
    static constexpr const char* Begins[] = {
        "Are you sure you want to save the slide",
        "NEB Slide Show will now test your graphics speed.",
        "There is no slide show yet.",
        "You must first select an Active Slide Show",
    };
    return Text.endsWith(u"Do you want to make a new one there?") ||
           std::ranges::any_of(
               Begins, [&](const char* Each) { return Text.startsWith(QLatin1String(Each)); });
}

// Whatever window asks it, in whatever test: a question is answered by Enter so that nothing goes.
void ExpectNothingGoesByEnter(const BoxRequest& Request) {
    if (Request.Buttons == BoxButtons::Ok) return;
    EXPECT_EQ(IsHarmless(Request.Text) ? BoxAnswer::Yes : AnswerOfClosing(Request.Buttons),
              Request.Default)
        << Request.Text.toStdString();
}

}  // namespace

ScriptedBoxes::ScriptedBoxes() : mBefore(TheServices().Boxes) {
    TheServices().Boxes = this;
}

ScriptedBoxes::~ScriptedBoxes() {
    TheServices().Boxes = mBefore;
    for (const Entry& Left : mQueue) ADD_FAILURE() << "nobody asked: " << Left.Text.toStdString();
}

void ScriptedBoxes::Expect(const QString& Text, BoxAnswer Answer) {
    mQueue.push_back({Text, std::nullopt, std::nullopt, Answer, std::exchange(mNextAction, {})});
}

void ScriptedBoxes::Expect(const QString& Text, const QString& Title, BoxAnswer Answer) {
    mQueue.push_back({Text, Title, std::nullopt, Answer, std::exchange(mNextAction, {})});
}

void ScriptedBoxes::Expect(const QString& Text, const QString& Title, BoxIcon Icon,
                           BoxAnswer Answer) {
    mQueue.push_back({Text, Title, Icon, Answer, std::exchange(mNextAction, {})});
}

void ScriptedBoxes::WhileNextIsOpen(std::function<void()> Action) {
    mNextAction = std::move(Action);
}

BoxAnswer ScriptedBoxes::Show(const BoxRequest& Request) {
    ++mShown;
    mLast = Request;
    if (mQueue.empty()) {
        ADD_FAILURE() << "unexpected box: " << Request.Text.toStdString();
        return AnswerOfClosing(Request.Buttons);
    }
    ExpectNothingGoesByEnter(Request);
    const Entry Next = std::move(mQueue.front());
    mQueue.pop_front();
    EXPECT_EQ(Next.Text.toStdString(), Request.Text.toStdString());
    EXPECT_EQ(Next.Title.value_or(Request.Title).toStdString(), Request.Title.toStdString());
    EXPECT_EQ(Next.Icon.value_or(Request.Icon), Request.Icon);
    if (Next.Action) Next.Action();
    return Next.Answer;
}

BoxAnswer LettingGo::Show(const BoxRequest& Request) {
    if (Request.Buttons == BoxButtons::Ok) return BoxAnswer::Ok;
    return Request.Buttons == BoxButtons::YesNo ? BoxAnswer::Yes : BoxAnswer::Discard;
}

}  // namespace neb::harness
