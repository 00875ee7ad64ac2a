// Every window that remembers its size, as it is: opened over an empty settings file, over one that
// says otherwise, and closed at a size of the user's.
#include <QScreen>

#include "AllWindowsRig.h"
#include "windows/compose/frmSlideShowDBM.h"
#include "windows/film/frmFilm.h"
#include "windows/import/frmQuickShow.h"
#include "windows/lists/frmPicturePopup.h"
#include "windows/rehearsal/frmRehearsal.h"
#include "windows/transfer/frmAlbumView.h"
#include "windows/transfer/frmSlideShowView.h"

namespace neb {
namespace {

using namespace harness;

template <class Window>
std::shared_ptr<Form> Make() {
    return NewForm<Window>();
}

const struct RememberedSize {
    const char* Section;
    int Height, Width;  // twips; 0: the least width is its own
    std::shared_ptr<Form> (*New)();
} Sizes[] = {
    {"frmSlideDBM", 7200, 7815, &Make<frmSlideDBM>},
    {"frmPicturePopup", 6675, 7260, &Make<frmPicturePopup>},
    {"frmSlideShowDBM", 9075, 0, &Make<frmSlideShowDBM>},
    {"frmImportFilter", 7080, 0, &Make<frmImportFilter>},
    {"frmQuickShow", 6540, 0, &Make<frmQuickShow>},
    {"frmSlideMgrBulk", 6315, 0, &Make<frmSlideMgrBulk>},
    {"frmRehearsal", 9000, 0, &Make<frmRehearsal>},
    {"frmFilm", 9000, 0, &Make<frmFilm>},
    {"frmAlbumView", 6315, 0, &Make<frmAlbumView>},
    {"frmSlideShowView", 6315, 0, &Make<frmSlideShowView>},
};

class RememberedSizes : public AllWindowsRig {
  protected:
    static std::shared_ptr<Form> Open(const RememberedSize& Of) {
        const auto Window = Of.New();
        Window->Load();
        EXPECT_EQ(Of.Section, Window->objectName().toStdString());
        return Window;
    }
    static std::string Kept(const char* Section, const char* Key) {
        return OpenSettings()
            .GetValue(QLatin1String(Section), QLatin1String(Key), {})
            .toStdString();
    }
    static void Keep(const char* Section, const char* Key, int Twips) {
        clsSettings Settings = OpenSettings();
        Settings.PutValue(QLatin1String(Section), QLatin1String(Key), QString::number(Twips));
        Settings.Save();
    }
};

TEST_F(RememberedSizes, AreAtLeastTheDocumentedOnesBeforeAnythingIsKept) {
    for (const RememberedSize& Each : Sizes) {
        const auto Window = Open(Each);
        EXPECT_GE(Window->height(), Each.Height / 15) << Each.Section;
        EXPECT_GE(Window->width(), Each.Width / 15) << Each.Section;
        EXPECT_TRUE(Window->screen()->availableGeometry().contains(Window->geometry()))
            << Each.Section;
        EXPECT_TRUE(Window->Unload());
    }
}

TEST_F(RememberedSizes, ComeFromTheFileAndGoBackThere) {
    for (const RememberedSize& Each : Sizes) {
        Keep(Each.Section, "Height", 9300);
        Keep(Each.Section, "Width", 15000);
        const auto Window = Open(Each);
        EXPECT_EQ(QSize(1000, 620), Window->size()) << Each.Section;
        Window->resize(1020, 640);
        EXPECT_TRUE(Window->Unload());
        EXPECT_EQ("9600", Kept(Each.Section, "Height")) << Each.Section;
        EXPECT_EQ("15300", Kept(Each.Section, "Width")) << Each.Section;
        EXPECT_EQ("0", Kept(Each.Section, "WindowState")) << Each.Section;
        for (const char* Key : {"Left", "Top"})
            EXPECT_NE("", Kept(Each.Section, Key)) << Each.Section << ' ' << Key;
    }
}

}  // namespace
}  // namespace neb
