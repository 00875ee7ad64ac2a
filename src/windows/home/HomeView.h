// The list of cards: as many beside each other as have room, all there at once however many there
// are. Typing in it searches; Enter and double click are the list's "activated".
#pragma once

#include <QListView>

#include "windows/home/CardPictures.h"

namespace neb {

class CardDelegate;

class HomeView : public QListView {
    Q_OBJECT

  public:
    explicit HomeView(QWidget* Parent = nullptr);

    HomeCards& Cards() { return *mCards; }
    CardPictures& Pictures() { return *mPictures; }
    const HomeCard* Current() const { return mCards->CardAt(currentIndex()); }
    void Choose(int Row);  // and scrolls to it; none: nothing happens
    std::vector<HomeCard> InView() const;
    // What stands in the room while there is no card.
    void SetEmptyText(const QString& Text);

    void keyboardSearch(const QString& Typed) override;
    void doItemsLayout() override;

  Q_SIGNALS:
    void Typed(const QString& Text);
    void MenuWanted(const QPoint& At);  // for the current card; of the screen

  protected:
    void resizeEvent(QResizeEvent* Event) override;
    void currentChanged(const QModelIndex& Now, const QModelIndex& Before) override;
    void paintEvent(QPaintEvent* Event) override;
    void changeEvent(QEvent* Event) override;
    void contextMenuEvent(QContextMenuEvent* Event) override;

  private:
    void SetSizes();
    void Renew(const LibraryHit& Of);

    HomeCards* mCards;
    CardPictures* mPictures;
    CardDelegate* mDelegate;
    QString mEmptyText;
};

}  // namespace neb
