// What a routine below the windows answers with: done, perhaps with a value, or refused, with what
// is to be said. Only windows show it (controls/forms/Tell.h); nebctl and tests read it.
#pragma once

#include <optional>
#include <utility>

#include "support/Services.h"

namespace neb {

// The value of an answer that has none.
struct Done {};

template <class Value = Done>
class [[nodiscard]] Answer {
  public:
    Answer(Value Result) : mResult(std::move(Result)) {}
    Answer(BoxRequest Refusal) : mRefusal(std::move(Refusal)) {}
    // The refusal of a step that this one needed.
    template <class Other>
    static Answer Because(const Answer<Other>& Step) {
        return Answer(Step.Refusal());
    }

    explicit operator bool() const { return mResult.has_value(); }
    // What was done; only where it was.
    Value& operator*() { return *mResult; }
    Value* operator->() { return &*mResult; }
    // The box that a window shall show; empty where it was done.
    const BoxRequest& Refusal() const { return mRefusal; }

  private:
    std::optional<Value> mResult;
    BoxRequest mRefusal;
};

// A refusal with what is to be said; a title of its own goes with the information icon.
inline BoxRequest Refuse(const QString& Text) {
    return {.Text = Text};
}
inline BoxRequest Refuse(const QString& Text, const QString& Title) {
    return {.Text = Text, .Title = Title, .Icon = BoxIcon::Information};
}

}  // namespace neb
