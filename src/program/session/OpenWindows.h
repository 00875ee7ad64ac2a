// Which windows stand open, on which album and show, written down and opened again: when the
// desktop ends its session and begins it anew. It knows numbers alone, which mean the same as long
// as the albums are the same.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <cstdint>

QT_BEGIN_NAMESPACE
class QMdiArea;
QT_END_NAMESPACE

namespace neb {

class HomePage;

// Where the windows of the program stand.
struct WindowPlaces {
    QMdiArea& Area;
    HomePage& Home;
};

struct OpenWindow {
    QString Name;  // of the window, or "HomePage" for an album that is looked through
    std::int32_t AlbumID = 0, SlideShowID = 0;
    QString Folder;  // of a quick show
    bool IsMaximised = false;
    bool operator==(const OpenWindow&) const = default;
};

// From the undermost to the one in front. Left out are windows that cannot be opened again as they
// were, such as pages for the printer.
QList<OpenWindow> WindowsOpenIn(const WindowPlaces& Places);
// Opens them in that order; what is not there any more is passed over.
void OpenAgain(const WindowPlaces& Places, const QList<OpenWindow>& Windows);

// Written down with the albums that they are of; nothing where the text is damaged, or of others.
QByteArray Packed(const QList<OpenWindow>& Windows, const QString& Database);
QList<OpenWindow> Unpacked(const QByteArray& Text, const QString& Database);

}  // namespace neb
