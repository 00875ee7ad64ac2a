// The page of the help that is read: links in a colour that can be read on every ground, pictures
// no wider than the page, letters as large as wanted. Used by frmHelp.
#pragma once

#include <QTextBrowser>

namespace neb {

class HelpView : public QTextBrowser {
    Q_OBJECT

  public:
    explicit HelpView(QWidget* Parent);

    // A file, with "#..." behind it where a place in it is meant.
    void Show(const QString& Address);
    // Sets off all places that hold one of the words and goes to the first; none takes that back.
    void Mark(const QStringList& Words);
    // The next place of a text, from the top again behind the last one; false: there is none.
    bool FindNext(const QString& Text, bool Backward);

    // Steps by which the letters are larger than those of the other windows; -4 to 12.
    int Zoom() const { return mZoom; }
    void SetZoom(int Steps);

  protected:
    QVariant loadResource(int Type, const QUrl& Name) override;
    void doSetSource(const QUrl& Name, QTextDocument::ResourceType Type) override;
    void resizeEvent(QResizeEvent* Event) override;
    void changeEvent(QEvent* Event) override;
    void wheelEvent(QWheelEvent* Event) override;

  private:
    void Dress();
    void ReadAnew();

    int mZoom = 0;
    int mPictureWidth = 0;  // the widest that the pictures of the page may be, in pixels
};

}  // namespace neb
