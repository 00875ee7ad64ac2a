// The window that says what the program is and whose work is in it.
#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>

#include "InitAssets.h"
#include "harness/AwaitActive.h"
#include "program/frmAbout.h"

namespace neb {
namespace {

class About : public ::testing::Test {
  protected:
    About() {
        InitAssets();
        QApplication::setApplicationVersion("1.2.3");
        mWindow = NewForm<frmAbout>();
        mWindow->ShowModeless();
        EXPECT_TRUE(harness::AwaitActive(*mWindow));
    }
    ~About() override {
        if (mWindow->IsLoaded()) mWindow->Unload();
        QApplication::setApplicationVersion({});
    }
    template <typename Control>
    Control& Named(const char* Name) {
        return *mWindow->findChild<Control*>(QLatin1String(Name));
    }
    std::shared_ptr<frmAbout> mWindow;
};

TEST_F(About, TellsTheVersionAndTheLicenceOfTheProgram) {
    EXPECT_EQ("Version 1.2.3", Named<QLabel>("lblVersion").text().toStdString());
    EXPECT_TRUE(Named<QLabel>("lblLicence").text().contains("GNU General Public License"));
}

TEST_F(About, TellsTheLicencesOfAllThatItWorksWith) {
    const auto& Notices = Named<QTextBrowser>("txtLicences");
    const QString Text = Notices.toPlainText();
    for (const char* Word : {"Qt 6", "LGPL 3", "ImageMagick License", "Independent JPEG Group",
                             "Brodie Thiesfield", "libsw*", "GPL 2"})
        EXPECT_TRUE(Text.contains(Word)) << Word;
    EXPECT_GT(Notices.height(), 100);
}

TEST_F(About, EnterClosesItAlthoughTheNoticesTakeTheFocus) {
    QTest::keyClick(mWindow.get(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(mWindow->IsLoaded());
}

}  // namespace
}  // namespace neb
