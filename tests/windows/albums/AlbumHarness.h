// What the tests of the windows around album names do: open one modally and act in it, and look at
// its controls and at the disk.
#pragma once

#include <QComboBox>
#include <QSet>

#include "harness/AwaitActive.h"
#include "windows/albums/frmAlbumDelete.h"
#include "windows/albums/frmAlbumRename.h"
#include "windows/albums/modAlbumNames.h"
#include "windows/import/IntakeHarness.h"

namespace neb::harness {

class AlbumWindows : public Intake {
  protected:
    AlbumWindows() { Others->Load(); }
    ~AlbumWindows() override { Others->Unload(); }

    // Opens a window and acts in it; what it answered. The window is closed if that leaves it open.
    static bool Rename(std::int32_t AlbumID, std::function<void(frmAlbumRename&)> Do) {
        WhenOpen<frmAlbumRename>(ThenClose<frmAlbumRename>(std::move(Do)));
        return ShowRenameAlbum(AlbumID);
    }
    static bool Delete(std::int32_t AlbumID, std::function<void(frmAlbumDelete&)> Do) {
        WhenOpen<frmAlbumDelete>(ThenClose<frmAlbumDelete>(std::move(Do)));
        return ShowDeleteAlbum(AlbumID);
    }
    static void RenameTo(frmAlbumRename& Window, const QString& Name) {
        In<QLineEdit>(Window, "txtAlbumName").setText(Name);
        Press(Window, "cmdSave");
    }
    void ExpectQuestion(BoxAnswer Answer) {
        Boxes.Expect(
            u"Are you sure you want to delete the selected Album?\n"
            "If you proceed all the slides and slide shows within\nwill be lost."_s,
            u"Delete Confirmation"_s, BoxIcon::Question, Answer);
    }
    void ExpectFirstSelect() {
        Boxes.Expect(u"You must first select an Album."_s, u"Missing User Input"_s,
                     BoxIcon::Information, BoxAnswer::Ok);
    }
    std::string NameOf(std::int32_t AlbumID) const {
        const clsNEBAlbum* Album = Engine.GetAlbum(AlbumID);
        return Album ? Album->AlbumName.toStdString() : "none";
    }
    std::string Heard() const { return Others->Heard.join(u'|').toStdString(); }

    static QStringList Entries(const QWidget& Window) {
        const auto& Box = In<QComboBox>(Window, "cboAlbum");
        QStringList All;
        for (int I = 0; I < Box.count(); ++I) All << Box.itemText(I);
        return All;
    }
    static std::string Listed(const QWidget& Window) {
        return Entries(Window).join(u'|').toStdString();
    }
    static std::string Chosen(const QWidget& Window) {
        return In<QComboBox>(Window, "cboAlbum").currentText().toStdString();
    }
    // The names of those of the controls that are off.
    static std::string Off(const QWidget& Window, const QList<const char*>& Controls) {
        QStringList Names;
        for (const char* Name : Controls)
            if (!In<QWidget>(Window, Name).isEnabled()) Names << QString::fromLatin1(Name);
        return Names.join(u' ').toStdString();
    }
    // A key for whatever has the keyboard.
    static void Key(QWidget& Window, Qt::Key Pressed, Qt::KeyboardModifiers With = {}) {
        EXPECT_TRUE(neb::harness::AwaitActive(Window));
        QTest::keyClick(Window.focusWidget() ? Window.focusWidget() : &Window, Pressed, With);
    }

    std::shared_ptr<Listener> Others = NewForm<Listener>();

  private:
    template <class Window>
    static std::function<void(Window&)> ThenClose(std::function<void(Window&)> Do) {
        return [Do = std::move(Do)](Window& Shown) {
            const auto Held = Shown.shared_from_this();
            Do(Shown);
            Shown.Unload();
        };
    }
};

}  // namespace neb::harness
