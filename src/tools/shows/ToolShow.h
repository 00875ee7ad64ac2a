// A slide show by its names, in a database that is read and left as it is, with the settings by
// which it is run. Used by the commands that run a show.
#pragma once

#include <memory>

#include "db/clsDBEngine.h"
#include "tools/words/ToolIO.h"

namespace neb {

struct ShowWords {
    QString Dir, Album, Show;
    QString Documents;  // the settings below it; empty: the user's own
};

// Takes --album, --show and --documents out of the words; the option that has no value, empty when
// all is well.
QString TakeShowWords(QStringList& Words, ShowWords& Of);

// The settings of the given documents folder, or of the user's own; that is not made when it is
// not there. Afterwards all is as it was.
class UserSettings {
  public:
    explicit UserSettings(const QString& Documents);
    ~UserSettings();
    UserSettings(const UserSettings&) = delete;
    UserSettings& operator=(const UserSettings&) = delete;

  private:
    QString mDocuments, mDBPath;
};

class ToolShow {
  public:
    // Null after a line on Err where there is no such album or show. Throws Fault.
    static std::unique_ptr<ToolShow> Open(const ShowWords& Of, ToolIO& IO);

    clsDBEngine Engine;
    const clsNEBAlbum* Album = nullptr;
    const clsNEBSlideShow* Show = nullptr;

  private:
    explicit ToolShow(const ShowWords& Of);
    UserSettings mSettings;
};

}  // namespace neb
