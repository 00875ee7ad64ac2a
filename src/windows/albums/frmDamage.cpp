#include "windows/albums/frmDamage.h"

#include <QDateTime>
#include <QScopedValueRollback>

#include "controls/fields/Icons.h"
#include "controls/forms/ScreenPointer.h"
#include "pictures/PictureFacts.h"
#include "settings/modNEBSlideShow.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "support/work/WorkAside.h"
#include "ui_frmDamage.h"

namespace neb {
namespace {

QString TimeOfCopy(const Generation& Each) {
    return TimeText(QDateTime::fromMSecsSinceEpoch(Each.Saved));
}

QString Counted(qint64 Count, const QString& One, const QString& Many) {
    return Count == 1 ? QStringLiteral("1 ") + One : QStringLiteral("%1 ").arg(Count) + Many;
}

QString TextOfCounts(qint64 Albums, qint64 Slides, qint64 SlideShows) {
    return QStringLiteral("%1, %2, %3")
        .arg(Counted(Albums, QObject::tr("album"), QObject::tr("albums")),
             Counted(Slides, QObject::tr("slide"), QObject::tr("slides")),
             Counted(SlideShows, QObject::tr("slide show"), QObject::tr("slide shows")));
}

QString TextOfGood(const std::optional<Generation>& Good) {
    if (!Good)
        return QObject::tr(
            "There are no earlier albums that could be brought back. You can go on "
            "with what is left.");
    return QObject::tr(
               "The last good albums were saved on %1: %2. What has been changed "
               "since then would have to be done again.")
        .arg(TimeOfCopy(*Good), TextOfCounts(Good->Albums, Good->Slides, Good->SlideShows));
}

// So that nobody gives up more than the damage has taken, nor goes on with nothing.
QString TextOfLeft(const std::optional<RestThere>& Left) {
    if (!Left) return {};
    return QObject::tr("\n\nWhat is left now: %1.")
        .arg(TextOfCounts(Left->Albums, Left->Slides, Left->SlideShows));
}

// Then going on loses the least: nothing but letters that the records cannot hold.
bool LacksWordsAlone(const DatabaseHealth& Health) {
    return Health.LacksWords && Health.Wrong.size() == 1;
}

QString TextOfWords(const DatabaseHealth& Health) {
    if (!LacksWordsAlone(Health)) return {};
    return QObject::tr(
        "\n\nAll albums, slides and shows are there. Going on loses no more than letters of "
        "captions and names, and takes as many as it can from the earlier albums.");
}

QString TextOfKept(const KeptFiles& Kept) {
    QString Text = QObject::tr("The files of before are kept here:\n%1").arg(Kept.Folder);
    if (!Kept.PutAside.isEmpty())
        Text += QObject::tr(
                    "\n\nChanges of an interrupted session do not go with these albums. "
                    "They are kept here:\n%1")
                    .arg(Kept.PutAside.join(u'\n'));
    return Text;
}

}  // namespace

frmDamage::frmDamage() : mUi(std::make_unique<Ui::frmDamage>()) {
    mUi->setupUi(this);
    On(mUi->cmdRestore, &QPushButton::clicked, &frmDamage::Restore);
    On(mUi->cmdGoOn, &QPushButton::clicked, &frmDamage::GoOn);
    On(mUi->cmdEnd, &QPushButton::clicked, &frmDamage::End);
}

frmDamage::~frmDamage() = default;

bool frmDamage::MakeSound(const QString& DBPath, const DatabaseHealth& Health) {
    mDamage = {DBPath, Health};
    ShowModal();
    return mDamage.IsMended;
}

void frmDamage::Form_Load() {
    Look();
    ShowDamage();
    mUi->lblWhere->setText(
        tr("The albums in %1 are damaged. Nothing has been changed.").arg(mDamage.DBPath));
    mUi->cmdRestore->setEnabled(mDamage.Good.has_value());
    QPushButton* const First = LacksWordsAlone(mDamage.Health) ? mUi->cmdGoOn
                               : mDamage.Good                  ? mUi->cmdRestore
                                                               : mUi->cmdEnd;
    First->setDefault(true);
    First->setFocus();
}

void frmDamage::Look() {
    const PointerScope Working(Pointer::Hourglass);
    FinishAside([this] {
        mDamage.Good = LastGoodGeneration(mDamage.DBPath);
        mDamage.Left = CountRest(mDamage.DBPath, mDamage.Health);
    }).get();
}

void frmDamage::ShowDamage() {
    mUi->txtWrong->setPlainText(mDamage.Health.Wrong.join(u'\n'));
    mUi->lblGood->setText(TextOfGood(mDamage.Good) + TextOfLeft(mDamage.Left) +
                          TextOfWords(mDamage.Health));
}

void frmDamage::Restore() {
    Mend(
        [this] { return RestoreInstead(mDamage.DBPath, AppPath(), mDamage.Health, *mDamage.Good); },
        tr("The albums are as they were saved on %1.").arg(TimeOfCopy(*mDamage.Good)));
}

void frmDamage::GoOn() {
    Mend([this] { return GoOnWithRest(mDamage.DBPath, AppPath(), mDamage.Health); },
         tr("The program goes on with what is left of the albums."));
}

// After a failure the window stays, for another try or the other way.
void frmDamage::Mend(const std::function<KeptFiles()>& Work, const QString& Done) {
    KeptFiles Kept;
    try {
        const QScopedValueRollback<bool> Working(mDamage.IsWorking, true);
        const PointerScope Hourglass(Pointer::Hourglass);
        Kept = FinishAside(Work).get();
    } catch (const Fault& Problem) {
        return TellFailure(Problem);
    }
    mDamage.IsMended = true;
    MsgBox(Done + QStringLiteral("\n\n") + TextOfKept(Kept), tr("Damaged Albums"),
           BoxIcon::Information);
    Unload();
}

// What is wrong may be something else by now.
void frmDamage::TellFailure(const Fault& Problem) {
    MsgBox(tr("That did not succeed. No file is lost.\n\n%1").arg(Problem.Text()),
           tr("Operation Failed"), BoxIcon::Critical);
    DatabaseHealth Now = LookAtHealth(mDamage.DBPath);
    mDamage.IsMended = Now.IsSound();  // the opening brings it to its end
    if (mDamage.IsMended) return End();
    mDamage.Health = std::move(Now);
    mDamage.Left = CountRest(mDamage.DBPath, mDamage.Health);
    ShowDamage();
}

}  // namespace neb
