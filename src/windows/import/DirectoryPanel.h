// What the windows share that ask for a directory of pictures: a list of places, a tree, the box
// for subdirectories, and the count of the pictures that lie there, made beside the window's other
// work. The directory last shown is remembered in "DS.ini" among the user's own files.
#pragma once

#include <QTimer>
#include <QWidget>
#include <memory>

#include "support/work/Job.h"

namespace neb {

namespace Ui {
class DirectoryPanel;
}

class DirectoryPanel : public QWidget {
    Q_OBJECT

  public:
    explicit DirectoryPanel(QWidget* Parent = nullptr);
    ~DirectoryPanel() override;

    // At the load of the window: goes to the directory last shown and counts from then on.
    void Begin();
    // At its unload: counts no more and remembers the directory.
    void End();

    // Whether the box for subdirectories, and the count, are offered; both are at first.
    void SetRecurseDirOption(bool Offered);
    void SetCountGraphics(bool Shown);
    QString Path() const;
    // Whether subdirectories are wanted: what the box said when it was last clicked or taken.
    bool RecurseDir() const { return mRecurseDir; }
    void ClearRecurseDir() { mRecurseDir = false; }
    // Takes what the controls say, a directory that is typed and not yet entered included; false
    // after a box when there is none of that name.
    bool TakeChoice();

  Q_SIGNALS:
    void DirectoryChosen();  // the user has gone to another one; Path() has it

  private:
    void GoneTo();
    void RecurseClicked();
    void StartCount();
    void LookAtCount();
    void StopCount();

    std::unique_ptr<Ui::DirectoryPanel> mUi;
    bool mBegun = false;
    bool mRecurseDir = false;
    bool mCountGraphics = true;
    bool mRecurseDirOption = true;

    std::unique_ptr<Job<std::int32_t>> mCount;  // null: none is under way
    QTimer mLook;                               // runs while a count does
};

// The memory of the directory last shown; errors are ignored both ways.
QString ReadLastDirectory();
void WriteLastDirectory(const QString& Directory);

}  // namespace neb
