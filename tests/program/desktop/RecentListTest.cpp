// The desktop's list of what was used last: ours come and go, the others' stay to the byte.
#include "program/desktop/RecentList.h"

#include <gtest/gtest.h>

#include <QXmlStreamReader>

namespace neb {
namespace {

using namespace Qt::StringLiterals;

const RecentItem Garden{u"file:///home/a%20b/Albums/3"_s, u"Gärten & <Wege>"_s,
                        u"inode/directory"_s,
                        QDateTime::fromString(u"2026-11-23T03:10:00Z"_s, Qt::ISODate)};

// As other programs write it, with their own ways of quoting, and letters of two units.
const QByteArray Others =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xbel version=\"1.0\"\n"
    "      xmlns:bookmark=\"http://www.freedesktop.org/standards/desktop-bookmarks\"\n"
    "      xmlns:mime='http://www.freedesktop.org/standards/shared-mime-info'\n>\n"
    "  <!-- 🌹 mine -->\n"
    "  <bookmark href='file:///x.txt' added=\"1\" modified=\"1\"  visited=\"1\">\n"
    "    <info><metadata owner=\"http://freedesktop.org\"><mime:mime-type type=\"text/plain\"/>"
    "<bookmark:applications><bookmark:application name=\"gedit\" exec=\"&apos;gedit %u&apos;\" "
    "modified=\"1\" count=\"2\"/></bookmark:applications></metadata></info>\n"
    "  </bookmark>\r\n\t\n"
    "</xbel>\n<!-- end -->\n";

bool IsWhole(const QByteArray& List) {
    QXmlStreamReader Xml(List);
    while (!Xml.atEnd()) Xml.readNext();
    return !Xml.hasError();
}

TEST(RecentList, ANewListHasTheItem) {
    const QByteArray List = *WithRecent({}, Garden);
    EXPECT_TRUE(IsWhole(List)) << List.toStdString();
    for (const char* Part :
         {"href=\"file:///home/a%20b/Albums/3\"", "added=\"2026-11-23T03:10:00.000000Z\"",
          "<title>Gärten &amp; &lt;Wege&gt;</title>", "<mime:mime-type type=\"inode/directory\"/>",
          "name=\"neb-slide-show\" exec=\"&apos;neb-slide-show %u&apos;\"", "count=\"1\""})
        EXPECT_TRUE(List.contains(Part)) << Part << " is not in\n" << List.toStdString();
}

TEST(RecentList, WhatOthersHaveStaysToTheByte) {
    const QByteArray List = *WithRecent(Others, Garden);
    EXPECT_TRUE(IsWhole(List)) << List.toStdString();
    EXPECT_NE(Others, List);
    EXPECT_EQ(Others.toStdString(), WithoutRecent(List, Garden.Uri)->toStdString());
}

TEST(RecentList, WhatIsUsedAgainStandsThereOnce) {
    RecentItem Later = Garden;
    Later.When = Later.When.addDays(1);
    Later.Title = u"Renamed"_s;
    const QByteArray List = *WithRecent(*WithRecent(Others, Garden), Later);
    EXPECT_EQ(1, List.count("Albums/3"));
    EXPECT_TRUE(List.contains("2026-11-24") && !List.contains("2026-11-23"));
    EXPECT_TRUE(List.contains("Renamed") && !List.contains("Wege"));
    EXPECT_EQ(Others.toStdString(), WithoutRecent(List, Garden.Uri)->toStdString());
}

TEST(RecentList, AnEntryOfOthersIsShared) {
    RecentItem Shared = Garden;
    Shared.Uri = u"file:///x.txt"_s;
    const QByteArray List = *WithRecent(Others, Shared);
    EXPECT_TRUE(IsWhole(List)) << List.toStdString();
    EXPECT_EQ(1, List.count("<bookmark "));
    EXPECT_TRUE(List.contains("name=\"gedit\"") && List.contains("name=\"neb-slide-show\""));
    EXPECT_TRUE(List.contains("added=\"1\" modified=\"2026-11-23")) << List.toStdString();
    const QByteArray Again = *WithRecent(List, Shared);
    EXPECT_EQ(List.toStdString(), Again.toStdString());
    const QByteArray Without = *WithoutRecent(List, Shared.Uri);
    EXPECT_TRUE(Without.contains("name=\"gedit\"") && !Without.contains("neb-slide-show"));
    EXPECT_TRUE(IsWhole(Without));
}

TEST(RecentList, ADamagedListIsLeftAlone) {
    for (const QByteArray& Bad :
         {QByteArray("x"), QByteArray("<xbel>"), Others.chopped(30), QByteArray("<html></html>"),
          QByteArray(Others).replace("mine", "\xFF\xFE"), QByteArray("<xbel></xbel><xbel/>"),
          QByteArray("<xbel/>"), QByteArray("<xbel>\n</xbel>")}) {
        EXPECT_FALSE(WithRecent(Bad, Garden)) << Bad.toStdString();
        EXPECT_FALSE(WithoutRecent(Bad, Garden.Uri)) << Bad.toStdString();
    }
}

TEST(RecentList, WhatIsNotOursIsNotTakenOut) {
    EXPECT_FALSE(WithoutRecent(Others, u"file:///x.txt"_s));
    EXPECT_FALSE(WithoutRecent(Others, Garden.Uri));
    EXPECT_FALSE(WithoutRecent({}, Garden.Uri));
}

}  // namespace
}  // namespace neb
