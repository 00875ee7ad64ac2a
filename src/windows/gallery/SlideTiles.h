// The slides of an album as thumbnails of a chosen size, in lines; their captions can be typed
// where they stand. Used by AlbumPage.
#pragma once

#include <QListView>

namespace neb {

class SlideModel;
class TileDelegate;
class TilePictures;

class SlideTiles : public QListView {
    Q_OBJECT

  public:
    explicit SlideTiles(QWidget* Parent = nullptr);
    ~SlideTiles() override;

    // Once. The slides live as long as the view. Side: of a picture, logical pixels.
    void Show(SlideModel& Slides, int Side);
    void SetSide(int Side);
    int Side() const;
    const TilePictures& Pictures() const { return *mPictures; }

    // In the order in which they stand.
    std::vector<std::int32_t> SelectedSlides() const;
    int FirstChosen() const;  // the row of the first of them; without any, of the one in hand
    // Takes one in hand, alone, and brings it into view.
    void ChooseRow(int Row);
    void EditCaption(const QModelIndex& Index);
    // Stores what is being typed.
    void FinishEdit();
    // What the view says when there is nothing in it.
    void SetEmptyText(const QString& Text);

  Q_SIGNALS:
    void Opened(int Row);  // by Enter, or by a double click
    void DeletePressed();
    void MenuAsked(const QPoint& GlobalPos);
    void SizeAsked(int Steps);  // larger, or with less than 0 smaller
    void CaptionTyped(const QModelIndex& Index, const QString& Caption);
    void EditRefused();  // the database may not be changed

  protected:
    void currentChanged(const QModelIndex& Now, const QModelIndex& Before) override;
    void paintEvent(QPaintEvent* Event) override;
    void resizeEvent(QResizeEvent* Event) override;
    void changeEvent(QEvent* Event) override;
    void keyPressEvent(QKeyEvent* Event) override;
    void mouseDoubleClickEvent(QMouseEvent* Event) override;
    void wheelEvent(QWheelEvent* Event) override;
    void contextMenuEvent(QContextMenuEvent* Event) override;
    bool edit(const QModelIndex& Index, EditTrigger Trigger, QEvent* Event) override;

  private:
    QModelIndex InSight() const;
    void FitGrid();

    TilePictures* mPictures = nullptr;
    TileDelegate* mDelegate = nullptr;
    QString mEmptyText;
};

}  // namespace neb
