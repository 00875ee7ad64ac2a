// The help as it lies beside the program: a cover that names the languages, and for each a folder
// with its contents, its index and a page a window and task, all XHTML. No window here; frmHelp
// shows it, and tests read it.
#pragma once

#include <QString>
#include <vector>

namespace neb {

// Page: a name such as "albums/slide-manager", with "#..." behind it where a place in it is meant.
struct HelpLink {
    QString Title;
    QString Page;
};

struct HelpSection {
    QString Title;
    std::vector<HelpLink> Links;
};

struct HelpFind {
    HelpLink Link;
    QString Excerpt;  // some words around the first that was found
};

class HelpBook {
  public:
    HelpBook() = default;
    // Cover: the file; Language: "en" and so on, English where the cover names no such. Throws
    // Fault where the cover, the contents or the index cannot be read.
    HelpBook(const QString& Cover, const QString& Language);

    QString FileOf(const QString& Page) const;  // without a place in it
    // The name of the page in a file of the folder, such as a link leads to; empty for others.
    QString PageAt(const QString& File) const;

    const std::vector<HelpSection>& Contents() const { return mContents; }
    const std::vector<HelpSection>& Index() const { return mIndex; }

    // The pages that hold all of the words, or parts of words; those that have them in their titles
    // come first. Case and accents do not matter. Throws Fault where a page cannot be read.
    std::vector<HelpFind> Find(const QString& Words) const;

  private:
    struct PageText {
        HelpLink Link;
        QString Text;
    };
    const std::vector<PageText>& Texts() const;

    QString mFolder;  // with its separator
    std::vector<HelpSection> mContents;
    std::vector<HelpSection> mIndex;
    mutable std::vector<PageText> mTexts;  // read at the first search
};

}  // namespace neb
