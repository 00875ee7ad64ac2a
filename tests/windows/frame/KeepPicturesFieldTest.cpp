// "Keep pictures at most" in the windows that take pictures.
#include "windows/frame/KeepPicturesField.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QTest>

#include "harness/TempFolder.h"
#include "settings/SettingKeys.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"
#include "windows/frame/Openers.h"

namespace neb {
namespace {

struct KeepPictures : ::testing::Test {
    KeepPictures() { SetDocumentsPath(Documents.Path()); }
    ~KeepPictures() override {
        SetHostWatcher({});
        TheOpeners() = {};
        DBPathCache.clear();
        DocumentsPath.clear();
    }
    static QComboBox& Box(KeepPicturesField& Field) { return *Field.findChild<QComboBox*>(); }
    static void Store(const char* Key) {
        clsSettings Settings = OpenSettings();
        PutText(Settings, Setting::KeepPictures, QString::fromLatin1(Key));
        Settings.Save();
    }
    static QString Stored() { return ReadText(OpenSettings(), Setting::KeepPictures); }
    static void Choose(KeepPicturesField& Field, int Steps) {
        Box(Field).setFocus();
        for (int I = 0; I < Steps; ++I) QTest::keyClick(&Box(Field), Qt::Key_Down);
    }

    harness::TempFolder Documents;
};

TEST_F(KeepPictures, ShowsWhatTheSettingsSay) {
    KeepPicturesField Field;
    EXPECT_EQ("1024 x 768", Box(Field).currentText());
    Store("Own");
    Field.show();
    EXPECT_EQ("Their own size", Box(Field).currentText());
    EXPECT_EQ(OwnSize, Field.Keeping().Limit);
}

TEST_F(KeepPictures, WhatIsChosenStandsForAllWindowsFromThenOn) {
    KeepPicturesField Field, Other;
    Field.show();
    Choose(Field, 2);
    EXPECT_EQ(QSize(3840, 2160), Field.Keeping().Limit);
    EXPECT_EQ("3840x2160", Stored());
    Other.show();
    EXPECT_EQ("3840 x 2160", Box(Other).currentText());
}

TEST_F(KeepPictures, FollowsWhatAnotherWindowHasChosenWhenItsOwnComesBackToTheFront) {
    KeepPicturesField Field;
    Field.show();
    Store("1920x1080");
    QEvent Activated(QEvent::WindowActivate);
    QCoreApplication::sendEvent(Field.window(), &Activated);
    EXPECT_EQ("1920 x 1080", Box(Field).currentText());
}

TEST_F(KeepPictures, TheScreenIsTheLargestAndNeverBelowTheLeastSize) {
    Store("Screen");
    KeepPicturesField Field;
    EXPECT_EQ(LargestScreenSize().expandedTo(SlideLimit), Field.Keeping().Limit);
    EXPECT_TRUE(Box(Field).currentText().startsWith("The largest screen ("));
}

TEST_F(KeepPictures, ASizeOfTheUsersOwnStaysInTheList) {
    Store("2000x1500");
    KeepPicturesField Field;
    EXPECT_EQ("2000 x 1500", Box(Field).currentText());
    EXPECT_EQ(QSize(2000, 1500), Field.Keeping().Limit);
}

TEST_F(KeepPictures, WhatCannotBeStoredCountsForThisWindowAndIsTold) {
    QString Notice;
    TheOpeners().Notice = [&](const QString& Text) { Notice = Text; };
    KeepPicturesField Field;
    Field.show();
    SetHostWatcher([](HostStep, const QString& Path, qint64&) {
        throw Fault(QStringLiteral("The disk is full."), Path);
    });
    Choose(Field, 1);
    SetHostWatcher({});
    EXPECT_TRUE(Notice.contains("The disk is full.")) << qPrintable(Notice);
    QEvent Activated(QEvent::WindowActivate);
    QCoreApplication::sendEvent(Field.window(), &Activated);
    EXPECT_EQ(QSize(1920, 1080), Field.Keeping().Limit);
}

}  // namespace
}  // namespace neb
