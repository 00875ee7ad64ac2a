// The Preferences window over the small database of the projector's tests, and a user in it.
#pragma once

#include <QButtonGroup>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTest>

#include "ProjectorRig.h"
#include "controls/grid/FlexGrid.h"
#include "harness/AwaitActive.h"
#include "settings/modNEBSlideShow.h"
#include "support/files/modHostFiles.h"
#include "windows/show/EffectList.h"
#include "windows/show/frmPreferences.h"

namespace neb::test {

inline frmPreferences* OpenPreferences() {
    for (const auto& Loaded : LoadedForms())
        if (auto* Found = dynamic_cast<frmPreferences*>(Loaded.get()); Found && Found->isVisible())
            return Found;
    return nullptr;
}

// Calls Do with the next Preferences window that stands open, and unloads it afterwards.
inline void WhenPreferencesOpen(std::function<void(frmPreferences&)> Do) {
    QTimer::singleShot(0, qApp, [Do = std::move(Do)] {
        frmPreferences* Window = OpenPreferences();
        if (!Window) return WhenPreferencesOpen(Do);
        const auto Held = Window->shared_from_this();
        (void)harness::AwaitActive(*Window);  // else it has no shortcuts yet
        Do(*Window);
        Window->Unload();
    });
}

// Types a timeout over the one that stands there and presses Apply.
inline void ApplyTimeout(frmPreferences& Window, const char* Seconds) {
    auto* Field = Window.findChild<QLineEdit*>(QStringLiteral("txtSlideTimeout"));
    Field->selectAll();
    QTest::keyClicks(Field, QString::fromLatin1(Seconds));
    QTest::mouseClick(Window.findChild<QPushButton*>(QStringLiteral("cmdApply")), Qt::LeftButton);
}

class PreferencesRig : public ProjectorRig {
  protected:
    enum Column { ColLevel, ColStep, ColDelay };

    PreferencesRig() {
        MakePicture(AppPathCache + QStringLiteral("SpeedTest1.bmp"), Qt::red, {640, 480});
        MakePicture(AppPathCache + QStringLiteral("SpeedTest2.bmp"), Qt::green, {640, 480});
        WriteFile(OpenSettings().FileName(), {});
    }

    // Opens the window; Do is a user in it. Returns when it has closed.
    void Open(const std::function<void()>& Do) {
        Window = NewForm<frmPreferences>();
        WhenPreferencesOpen([Do](frmPreferences&) { Do(); });
        Window->LoadPreferences();
    }
    bool IsOpen() const { return Window->IsLoaded(); }
    template <class Control>
    Control& In(const char* Name) const {
        return *Window->findChild<Control*>(QString::fromLatin1(Name));
    }
    QComboBox& Combo(const char* Name) const { return In<QComboBox>(Name); }
    QLineEdit& Text(const char* Name) const { return In<QLineEdit>(Name); }
    EffectList& List() const { return In<EffectList>("lstEffects"); }
    FlexGrid& Grid() const { return In<FlexGrid>("flxEffectSettings"); }
    XShow& View() const { return In<XShow>("XShow1"); }
    void Press(const char* Button) const {
        QTest::mouseClick(&In<QPushButton>(Button), Qt::LeftButton);
    }
    void Type(const char* Field, const char* Typed) const {
        Text(Field).selectAll();
        QTest::keyClicks(&Text(Field), QString::fromLatin1(Typed));
    }
    // The one that is open; those of before go with the next events.
    QLineEdit* CellEditor() const {
        for (QLineEdit* Each : Grid().findChildren<QLineEdit*>())
            if (Grid().IsEditing() && Each->isVisible()) return Each;
        return nullptr;
    }
    // Types into a cell as a user does; with Enter the editor closes.
    void TypeInCell(int Row, int Col, const char* Typed, bool Enter = true) const {
        Grid().setFocus();
        Grid().setCurrentIndex(Grid().model()->index(Row, Col));
        QTest::keyClick(&Grid(), Qt::Key_F2);
        QLineEdit* Editor = CellEditor();
        ASSERT_NE(nullptr, Editor);
        Editor->selectAll();
        QTest::keyClick(Editor, Qt::Key_Delete);
        QTest::keyClicks(Editor, QString::fromLatin1(Typed));
        if (Enter) QTest::keyClick(Editor, Qt::Key_Return);
    }
    // The same from the clipboard, which no key filter sees.
    void PasteInCell(int Row, int Col, const char* Pasted) const {
        TypeInCell(Row, Col, "", false);
        CellEditor()->insert(QString::fromLatin1(Pasted));
        QTest::keyClick(CellEditor(), Qt::Key_Return);
    }
    QPoint OnName(int Row) const { return List().visualItemRect(List().item(Row)).center(); }
    void GoTo(int Row) const {
        List().scrollToItem(List().item(Row));
        QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, OnName(Row));
    }
    void ExpectRefusal(const char* Message) {
        Boxes.Expect(QString::fromLatin1(Message), QStringLiteral("Invalid User Input"),
                     BoxIcon::Information, BoxAnswer::Ok);
    }
    QByteArray FileText() const { return ReadFile(OpenSettings().FileName()); }
    // The file names of the pictures that were read since the window was opened.
    std::string PicturesRead() {
        QStringList Names;
        for (const QString& Path : Read()) Names << Path.section(u'/', -1).remove(".bmp");
        return Names.join(u' ').toStdString();
    }
    // An album with a name and shows of these names.
    std::int32_t AddAlbum(const char* Name, const QStringList& Shows) {
        std::int32_t ID = 0;
        Engine.SaveAlbum(ID, QString::fromLatin1(Name));
        for (const QString& ShowName : Shows) {
            std::int32_t ShowID = 0;
            Engine.GetAlbum(ID)->SaveSlideShow(ShowID, ShowName, 0, Engine);
        }
        return ID;
    }

    std::shared_ptr<frmPreferences> Window;
};

}  // namespace neb::test
