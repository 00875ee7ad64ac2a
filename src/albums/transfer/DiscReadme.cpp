#include "albums/transfer/DiscReadme.h"

#include "support/Services.h"
#include "support/files/CheckSums.h"

namespace neb {
namespace {

constexpr char Head[] = R"(NEB Slide Show: photographs and slide shows
===========================================

This folder was written on %1 by NEB Slide Show, a program that keeps
photographs in albums and shows them with transitions, captions and music. It is
complete: it can be put on a disc or a stick, and plays from there. Nothing in it
is changed by looking at it.

In it:
)";

constexpr char Tail[] = R"(
To play it
----------
Start the program on this folder:

    neb-slide-show --documents <this folder>

or drop this folder on the window of NEB Slide Show. Then press F5. Another show
is chosen in the menu Slide Show, Preferences.

Without the program
-------------------
The pictures are ordinary JPEG files. They lie below Albums, in the folder Slides
of each album; any program for pictures shows them. The files that end in
"Small.bmp" are small copies for lists. Sounds lie in the folder SoundTracks.

To bring albums or shows into albums of your own, choose Import/Export, Import
Album or Import Slide Show in the program.

Is it still as it was written?
------------------------------
%1 holds a check sum of every file. Each of these compares them:

    sha256sum -c %1         in this folder
    nebctl check --files .           in this folder
    Import/Export, Check a Disc...   in the menu of the program
)";

QString SlidesText(int Slides) {
    return Slides == 1 ? QStringLiteral("1 slide") : QStringLiteral("%1 slides").arg(Slides);
}

}  // namespace

QString ReadmeText(const std::vector<ListedAlbum>& Albums) {
    const QString Today = TheServices().Time->Now().toString(QStringLiteral("yyyy-MM-dd"));
    QString Text = QString::fromLatin1(Head).arg(Today);
    for (const ListedAlbum& Album : Albums) {
        Text += QStringLiteral("\n  ") + Album.Name + QStringLiteral(" (") +
                SlidesText(Album.Slides) + QStringLiteral(")\n");
        for (const ListedAlbum::Show& Show : Album.SlideShows)
            Text += QStringLiteral("    - ") + Show.Name + u'\n';
    }
    return Text + QString::fromLatin1(Tail).arg(QLatin1String(SumsName));
}

}  // namespace neb
