// The text of a slide as its caption's label takes it, and as the label shows it.
#pragma once

#include <QString>

namespace neb {

// "&" is doubled, a line feed is dropped, a carriage return becomes one blank.
QString FixCaptionText(const QString& Text);

// The label's side: two "&" are one on the screen, a single one is no character at all.
QString ShownCaptionText(const QString& LabelText);

}  // namespace neb
