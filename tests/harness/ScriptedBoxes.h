// Stands in for the message boxes: a queue of the questions that a test expects, with answers.
// A box that nobody expected, and an answer that nobody asked for, fail the test.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <utility>

#include "support/Services.h"

namespace neb::harness {

class ScriptedBoxes : public MessageBoxes {
  public:
    ScriptedBoxes();            // takes the place of the boxes in force
    ~ScriptedBoxes() override;  // puts them back; fails when answers are left

    // Expects a box of this text (title checked too when given; nullptr: any title).
    void Expect(const QString& Text, BoxAnswer Answer = BoxAnswer::Ok);
    void Expect(const QString& Text, const QString& Title, BoxAnswer Answer = BoxAnswer::Ok);
    void Expect(const QString& Text, const QString& Title, BoxIcon Icon, BoxAnswer Answer);
    // Something that happens while the next expected box is open, before it is answered.
    void WhileNextIsOpen(std::function<void()> Action);

    BoxAnswer Show(const BoxRequest& Request) override;
    int ShownCount() const { return mShown; }
    const BoxRequest& Last() const { return mLast; }

  private:
    struct Entry {
        QString Text;
        std::optional<QString> Title;
        std::optional<BoxIcon> Icon;
        BoxAnswer Answer;
        std::function<void()> Action;
    };
    std::deque<Entry> mQueue;
    std::function<void()> mNextAction;
    MessageBoxes* mBefore;
    int mShown = 0;
    BoxRequest mLast;
};

// While it stands, work that windows still hold is given up: at the end of a test, say.
class LettingGo : public MessageBoxes {
  public:
    LettingGo() : mBefore(std::exchange(TheServices().Boxes, this)) {}
    ~LettingGo() override { TheServices().Boxes = mBefore; }
    BoxAnswer Show(const BoxRequest& Request) override;

  private:
    MessageBoxes* mBefore;
};

}  // namespace neb::harness
