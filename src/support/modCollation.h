// The order of words as people know it from their language: of the lists of albums, slides and
// shows, and of the files of a directory.
#pragma once

#include <QCollator>

namespace neb {

// By the order of the user's language, case aside, numbers by their value: "Slide 2" before
// "Slide 10". Without a language, the order that most languages share. Any thread.
const QCollator& NameOrder();

}  // namespace neb
