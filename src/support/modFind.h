// How texts are looked for wherever something is sought by its words: a caption in a show, a
// transition, an album. Case, accents and points over or under letters do not matter, in any
// script, nor do the forms of quotes and of digits; a letter that is one of its own does.
#pragma once

#include <QString>
#include <QStringView>

namespace neb {

// The letters alone: what two texts must have alike to count as the same when they are sought.
QString BareLetters(QStringView Text);
// Whether Text holds all of the words, or parts of words, of Sought; no words are nowhere.
bool FoundIn(QStringView Text, QStringView Sought);
// Whether Text begins with Sought, or holds it as it stands.
bool BeginsWith(QStringView Text, QStringView Sought);
bool HoldsWhole(QStringView Text, QStringView Sought);

}  // namespace neb
