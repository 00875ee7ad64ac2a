#include "harness/ScriptedBoxes.h"

#include <gtest/gtest.h>

namespace neb::harness {

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
        return Request.Buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::No;
    }
    const Entry Next = std::move(mQueue.front());
    mQueue.pop_front();
    EXPECT_EQ(Next.Text.toStdString(), Request.Text.toStdString());
    EXPECT_EQ(Next.Title.value_or(Request.Title).toStdString(), Request.Title.toStdString());
    EXPECT_EQ(Next.Icon.value_or(Request.Icon), Request.Icon);
    if (Next.Action) Next.Action();
    return Next.Answer;
}

}  // namespace neb::harness
