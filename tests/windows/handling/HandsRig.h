// A running show and the hands at it: keys, mouse and fingers as the desktop delivers them.
#pragma once

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

#include "windows/show/ProjectorRig.h"

namespace neb::test {

class HandsRig : public ProjectorRig {
  protected:
    void Press(int Key, Qt::KeyboardModifiers With = Qt::NoModifier) {
        if (Key < Qt::Key_MediaPlay || Key > Qt::Key_MediaTogglePlayPause) {
            QTest::keyClick(Window->windowHandle(), static_cast<Qt::Key>(Key), With);
            return;
        }
        QKeyEvent ForMusic(QEvent::KeyPress, Key, With);  // which QTest does not know
        QApplication::sendEvent(Window->windowHandle(), &ForMusic);
    }
    void RunManual(const Action& Do) {
        SlideShow->ProgressionMethod = 1;
        RunHands(Do);
    }
    void RunHands(const Action& Do) {
        Run([this, &Do](frmSlideShowProjector& Shown) {
            Window = &Shown;
            Do(Shown);
        });
    }
    QWidget* Part(const char* Name) const {
        return Window->findChild<QWidget*>(QString::fromLatin1(Name));
    }
    bool IsUp(const char* Name) const { return Part(Name)->isVisible(); }
    void MoveTo(const QPoint& At) {
        QTest::mouseMove(Window->windowHandle(), At);
        QCoreApplication::processEvents();
    }
    void ClickAt(const QPoint& At, Qt::MouseButton Button = Qt::LeftButton) {
        QTest::mouseClick(Window->windowHandle(), Button, {}, At);
    }
    std::string PlayWord() const { return Window->State().PlayCommand.toStdString(); }

    // Closes the menu that Open brings up, and tells where it stood; null when none came.
    QRect MenuOf(const std::function<void()>& Open) {
        QRect Place;
        QTimer Closer;
        QObject::connect(&Closer, &QTimer::timeout, [&Place] {
            auto* Menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (!Menu) return;
            Place = Menu->geometry();
            Menu->close();
        });
        Closer.start(2);
        Open();
        QTest::qWait(30);
        return Place;
    }

    frmSlideShowProjector* Window = nullptr;
};

}  // namespace neb::test
