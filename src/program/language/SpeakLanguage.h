// The language of the program: the user's own where it has been translated, else English. For the
// entry, before the first window.
#pragma once

#include <QStringList>

namespace neb {

// Wanted: as QLocale::uiLanguages gives them, the dearest first ("de-AT"). Takes the first that the
// program can speak, and the toolkit's own words in it, where they are installed. A second call
// takes the place of the first.
void SpeakLanguage(const QStringList& Wanted);
// "de"; "en" where nothing has been translated.
QString SpokenLanguage();

}  // namespace neb
