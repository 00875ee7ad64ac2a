// What the tests of the intake windows do with them: make pictures, find windows and controls,
// press buttons, take steps inside modal windows, listen to what is broadcast.
#pragma once

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "controls/forms/Form.h"
#include "controls/grid/FlexGrid.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"
#include "windows/frame/modBroadcast.h"

namespace neb::harness {

using namespace Qt::StringLiterals;

// Writes a picture of one colour in the format that the name says.
inline QString MakePicture(const QString& Path, int Width = 32, int Height = 24,
                           QColor Colour = Qt::red) {
    MakeDirs(Path.left(Path.lastIndexOf(u'/')));
    QImage Picture(Width, Height, QImage::Format_RGB32);
    Picture.fill(Colour);
    if (!Picture.save(Path)) ADD_FAILURE() << "cannot make " << Path.toStdString();
    return Path;
}

// The open window of a kind, or nullptr.
template <class Window>
Window* Open() {
    for (const auto& Each : LoadedForms())
        if (auto* Found = dynamic_cast<Window*>(Each.get()); Found && Found->isVisible())
            return Found;
    return nullptr;
}

template <class Control>
Control& In(const QWidget& Window, const char* Name) {
    auto* Found = Window.findChild<Control*>(QString::fromLatin1(Name));
    if (!Found) throw Fault(u"no control "_s + QString::fromLatin1(Name));
    return *Found;
}

inline void Press(const QWidget& Window, const char* Button) {
    QTest::mouseClick(&In<QPushButton>(Window, Button), Qt::LeftButton);
}

// Does something once, as soon as a window of the kind stands open and is Ready.
template <class Window>
void WhenOpen(std::function<void(Window&)> Do, std::function<bool()> Ready = {}) {
    auto* Poll = new QTimer(qApp);
    Poll->setObjectName(u"neb-step"_s);
    QObject::connect(Poll, &QTimer::timeout, qApp, [Poll, Do, Ready] {
        Window* Found = Open<Window>();
        if (!Found || !Poll->isActive() || (Ready && !Ready())) return;
        Poll->stop();
        Poll->deleteLater();
        Do(*Found);
    });
    Poll->start(2);
}

inline QStringList Column(const FlexGrid& Grid, int Col) {
    QStringList All;
    for (int Row = 0; Row < Grid.Rows(); ++Row) All << Grid.TextMatrix(Row, Col);
    return All;
}

// A window beside the one under test that notes what it hears.
class Listener : public Form, public ChangeReceiver {
  public:
    void ReceiveEvent(const QString& ObjectType, const QString& EventType,
                      const EventKeys& EventData) override {
        QString Line = ObjectType + u' ' + EventType;
        for (std::int32_t Key : EventData) Line += u' ' + QString::number(Key);
        Heard << Line;
        if (OnEvent) OnEvent();
    }
    QStringList Heard;
    std::function<void()> OnEvent;
};

}  // namespace neb::harness
