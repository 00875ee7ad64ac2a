// The first page of the home: the field that finds, the show that was left, albums and shows as
// cards, and what to begin with. Follows changes a moment later, many of them at once.
#pragma once

#include <QTimer>
#include <QWidget>

#include "albums/library/LibrarySearch.h"
#include "windows/frame/modBroadcast.h"

QT_BEGIN_NAMESPACE
class QAction;
class QLabel;
class QLineEdit;
class QMenu;
QT_END_NAMESPACE

namespace neb {

class BeginningsRow;
class FirstDay;
class HomeView;
class LeftShow;
struct HomeCard;

class HomeList : public QWidget {
    Q_OBJECT

  public:
    explicit HomeList(QWidget* Parent = nullptr);

    // All anew: another database may lie behind it.
    void Fill();
    void ReceiveEvent(const QString& ObjectType, const QString& EventType,
                      const EventKeys& EventData);
    void TakeFocus();  // where the keys do something
    void FindNext();   // to the field

  Q_SIGNALS:
    void AlbumWanted(std::int32_t AlbumID, std::int32_t SlideID);
    void QuickShowWanted();

  protected:
    bool event(QEvent* Event) override;
    bool eventFilter(QObject* Watched, QEvent* Event) override;
    void changeEvent(QEvent* Event) override;
    void showEvent(QShowEvent* Event) override;
    void resizeEvent(QResizeEvent* Event) override;

  private:
    void SetUpField();
    void DressField();
    void SetUpView();
    void SetUpLayout();
    void SetUpDeeds();
    bool IsSearching() const;
    std::vector<HomeCard> Cards();
    void Search();
    void StartSearch(const QString& Typed);
    void ClearSearch();
    void RenewChanged();
    void LearnSome();
    void ShowState();
    void Activate();
    void OpenMenu(const QPoint& At);
    QString SummaryOf(const std::vector<HomeCard>& Cards) const;

    QLineEdit* mField;
    QLabel* mSummary;
    LeftShow* mLeft;
    BeginningsRow* mRow;
    FirstDay* mFirst;
    HomeView* mView;
    QMenu* mMenu;  // of the card in hand; in a second menu its entries would not be heard
    LibrarySearch mSearch;
    QTimer mRenew, mLearn;
    int mSlidesFound = 0;
};

}  // namespace neb
