// What a routine below the windows has refused, and the box that a window shall show for it.
#pragma once

#include <gtest/gtest.h>

#include "support/Answer.h"

namespace neb::harness {

template <class Value>
void ExpectRefused(const Answer<Value>& Given, const QString& Text, const QString& Title = {},
                   BoxIcon Icon = BoxIcon::Plain) {
    EXPECT_FALSE(Given);
    EXPECT_EQ(Given.Refusal().Text, Text);
    EXPECT_EQ(Given.Refusal().Title, Title);
    EXPECT_EQ(Given.Refusal().Icon, Icon);
    EXPECT_EQ(Given.Refusal().Buttons, BoxButtons::Ok);
}

}  // namespace neb::harness
