// Browsing for a directory: a line in which a path can be typed and a tree of directories. A list
// of places (the user's folders, drives and media) may stand with it.
#pragma once

#include <QPointer>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QComboBox;
class QLineEdit;
class QModelIndex;
class QTreeView;
QT_END_NAMESPACE

namespace neb {

class DirectoryModel;
class DirectoryProposals;

class DirectoryTree : public QWidget {
    Q_OBJECT

  public:
    explicit DirectoryTree(QWidget* Parent = nullptr);

    // The directory shown, in the host's form; at first the user's pictures folder or home.
    QString Path() const { return mPath; }
    // Goes to a directory; one that does not exist changes nothing.
    void SetPath(const QString& Path);
    // The text in the line, and going to the directory it names: a path, "~" for the home, an
    // address of "file:". False when there is none.
    QString TypedText() const;
    bool TakeTyped();
    // Fills the list with places; choosing one goes there, and it shows the place that holds the
    // directory, or nothing. Volumes come and go in it as they do on the host.
    void SetDrives(QComboBox* Drives);

  Q_SIGNALS:
    void Change();  // another directory is shown

  protected:
    bool eventFilter(QObject* Watched, QEvent* Event) override;
    void keyPressEvent(QKeyEvent* Event) override;

  private:
    void SetUpTree();
    void BringIntoSight();
    void FollowVolumes();
    void ShowPlace();
    void ShowPath();
    void Collapsed(const QModelIndex& Index);
    QString TypedPath() const;
    void TreeMoved(const QString& Path);

    QLineEdit* mTyped;
    QTreeView* mTree;
    DirectoryModel* mModel;
    DirectoryProposals* mProposals;
    QPointer<QComboBox> mDrives;
    QString mPath;
    bool mInSight = true;  // the tree scrolls to the directory until the user takes it over
};

}  // namespace neb
