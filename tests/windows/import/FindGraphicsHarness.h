// What the tests of Find Graphics share: drives of the test's own, a tree of files, and the window
// with its controls.
#pragma once

#include <sys/stat.h>

#include <QComboBox>
#include <QPointer>

#include "IntakeHarness.h"
#include "controls/directories/DirectoryTree.h"
#include "controls/directories/Drives.h"
#include "harness/HastyClock.h"
#include "support/Services.h"
#include "windows/import/frmDirSelect.h"
#include "windows/import/frmFindGraphics.h"

namespace neb::harness {

class ScriptedDrives : public DriveList {
  public:
    ScriptedDrives() { TheServices().Drives = this; }
    ~ScriptedDrives() override { TheServices().Drives = nullptr; }
    QStringList Drives() const override { return Paths; }
    bool IsReady(const QString& Drive) const override { return FolderExists(Drive); }
    bool IsFar(const QString& Drive) const override { return Drive == Far; }
    std::vector<Volume> Volumes() const override { return Sticks; }
    void Watch(QObject& Owner, std::function<void()> Changed) const override {
        mWatchers.emplace_back(&Owner, std::move(Changed));
    }
    void TellChange() const {
        for (const auto& [Owner, Changed] : mWatchers)
            if (Owner) Changed();
    }
    QStringList Paths;
    QString Far;
    std::vector<Volume> Sticks;

  private:
    mutable std::vector<std::pair<QPointer<QObject>, std::function<void()>>> mWatchers;
};

// So slow are directories in the eyes of this clock that the window yields at each.
class LongStrides : public HastyClock {
  public:
    double Ticks() const override { return 10 * HastyClock::Ticks(); }
};

class FindGraphics : public Intake {
  protected:
    FindGraphics() { Drives.Paths = {Pics.Path().chopped(1)}; }
    ~FindGraphics() override {
        if (Window) Window->Unload();
    }

    void Make(std::initializer_list<const char*> Paths) {
        for (const char* Name : Paths) Make(QString::fromLatin1(Name));
    }
    void Make(const QString& Name) {
        MakeDirs((Pics / Name).left((Pics / Name).lastIndexOf(u'/')));
        WriteFile(Pics / Name, "x");
    }
    // A picture in each of so many directories below the first, which has none.
    void MakeMany(int Count) {
        for (int I = 0; I < Count; ++I) Make(u"d%1/p.jpg"_s.arg(I, 3, 10, QChar(u'0')));
    }
    // Nobody but the administrator may read it; the directories above may be read by all.
    void Lock(const QString& Name) {
        EXPECT_EQ(0, chmod(qPrintable(Pics.Path()), 0755));
        EXPECT_EQ(0, chmod(qPrintable(Pics / Name), 0));
    }
    void Show() {
        Window = NewForm<frmFindGraphics>();
        ShowActive(*Window);
    }
    void Search() { Press(*Window, "cmdSearch"); }
    // Something that happens once, at the yield of the so-manieth directory.
    void AtDirectory(int Number, std::function<void()> Do) {
        const QString Caption = u"Find Graphics - %1 Directories"_s.arg(Number);
        SetDoEventsHook([this, Caption, Do, Done = false]() mutable {
            if (Done || !Window->windowTitle().startsWith(Caption)) return;
            Done = true;
            Do();
        });
    }
    // The next directory selector gives this answer; none: it is cancelled.
    static void Answer(const QString& Directory) {
        WhenOpen<frmDirSelect>([Directory](frmDirSelect& Selector) {
            EXPECT_FALSE(Selector.findChild<QWidget*>(u"chkRecurseDir"_s)->isVisible());
            EXPECT_FALSE(Selector.findChild<QWidget*>(u"lblDirSummary"_s)->isVisible());
            if (!Directory.isEmpty()) In<DirectoryTree>(Selector, "Dir1").SetPath(Directory);
            Press(Selector, Directory.isEmpty() ? "cmdCancel" : "cmdSelect");
        });
    }
    void Browse(const QString& Directory) {
        Answer(Directory);
        Path().setFocus();
        QTest::keyClick(&Path(), Qt::Key_End);
    }

    FlexGrid& Grid() { return In<FlexGrid>(*Window, "flxResults"); }
    QComboBox& Path() { return In<QComboBox>(*Window, "cboSearchPath"); }
    QLineEdit& Filter() { return In<QLineEdit>(*Window, "txtFilter"); }
    QPushButton& Button(const char* Name) { return In<QPushButton>(*Window, Name); }
    std::string Label(const char* Name) { return In<QLabel>(*Window, Name).text().toStdString(); }
    std::string Names() { return Column(Grid(), 0).join(u',').toStdString(); }
    QStringList PathTexts() {
        QStringList Texts;
        for (int I = 0; I < Path().count(); ++I) Texts << Path().itemText(I);
        return Texts;
    }

    LongStrides Strides;
    ScriptedDrives Drives;
    std::shared_ptr<frmFindGraphics> Window;
};

}  // namespace neb::harness
