// Every window of the program, opened one after the other over the main window as a user would, on
// an album with slides, a show and a sound: for tests that look at all of them.
#pragma once

#include <functional>

#include "MainWindowRig.h"

namespace neb::harness {

// Name: the window's class; Window: it, on the screen, with its lists read.
using LookAtWindow = std::function<void(const QString& Name, QWidget& Window)>;

// In windows without albums most lists are empty.
enum class Content { None, Albums };

// The main window comes first. Gives how many windows there were; one that does not open fails the
// test. Left out are those that fill the screen or are never seen.
int LookAtEveryWindow(Content Of, const LookAtWindow& Look);

// The language that NEB_WINDOWS_LANGUAGE names, such as "de", in texts, dates and numbers.
void SpeakLanguageOfWindows();
// A text of the samples in that language: the file NEB_WINDOWS_WORDS has lines such as
// "Garden=Garten". What it lacks stays as it is.
QString SampleWords(const QString& Text);

}  // namespace neb::harness
