#include "windows/show/frmPreferences.h"

#include <QScreen>

#include "controls/fields/ComboBoxList.h"
#include "controls/fields/KeyFilter.h"
#include "controls/grid/FlexGrid.h"
#include "controls/picture/XShow.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Grouped.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "support/modNumbers.h"
#include "ui_frmPreferences.h"
#include "windows/frame/KeepPicturesField.h"
#include "windows/show/ShowScreen.h"
#include "windows/show/modSlideShows.h"

namespace neb {
namespace {

// A level's row in the grid is the level less one: the headings are no row of their own.
enum Column { ColLevel, ColStep, ColDelay, ColCount };

constexpr QSize RoomForFrame(16, 40);  // what a desktop puts round a window

// The window comes back as large as it was left, for as long as the program runs.
QSize& LastSize() {
    static QSize Size;
    return Size;
}

// Selects the entry with this key; nothing for the key 0 and for one that is not there.
void SelectOrNothing(ComboBoxList& Combo, std::int32_t ID) {
    Combo.SetListIndex(-1);
    if (ID != 0) ComboSelectByData(Combo, ID, -1);
}

std::optional<PreferencesEntries::Choice> Chosen(QComboBox& Box) {
    const ComboBoxList Combo(Box);
    if (Combo.ListIndex() < 0) return std::nullopt;
    return PreferencesEntries::Choice{Combo.ItemData(Combo.ListIndex()),
                                      Combo.List(Combo.ListIndex())};
}

std::int32_t ChosenID(QComboBox& Box) {
    const auto Found = Chosen(Box);
    return Found ? Found->ID : 0;
}

// For what is counted in whole numbers from 0: the next slide, and the cells of the speeds.
void FilterDigitKey(const EntryState& Field, std::int16_t& KeyAscii) {
    FilterNumericKey(Field, KeyAscii, false);
}

}  // namespace

// Until the settings have been read, the time that is in force counts.
frmPreferences::frmPreferences() : mUi(std::make_unique<Ui::frmPreferences>()) {
    mState.SlideTimeout = neb::SlideTimeout;
    mUi->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    for (QComboBox* Box :
         {mUi->cboAlbums, mUi->cboSlideShows, mUi->cboScreen, mUi->cboKeepPictures})
        Box->view()->setAccessibleName(Box->accessibleName());
    SetUpGrid();
    ConnectControls();
}

frmPreferences::~frmPreferences() = default;

void frmPreferences::SetUpGrid() {
    FlexGrid& Grid = *mUi->flxEffectSettings;
    Grid.SetCols(ColCount);
    Grid.SetColumn(ColLevel, {.Kind = FlexKind::Fixed});
    Grid.SetColumn(ColStep, {.Editable = true, .Stretch = true, .Heading = tr("Step")});
    Grid.SetColumn(ColDelay, {.Editable = true, .Stretch = true, .Heading = tr("Delay")});
    Grid.setSelectionBehavior(QAbstractItemView::SelectItems);
    Grid.setSelectionMode(QAbstractItemView::SingleSelection);
    Grid.SetKeyPressEdit(&FilterDigitKey);
}

void frmPreferences::ConnectControls() {
    new KeyFilter(mUi->txtSlideTimeout, &FilterTimeoutKey);
    new KeyFilter(mUi->txtNextSlide, &FilterDigitKey);
    connect(mUi->cboAlbums, &QComboBox::currentIndexChanged, this,
            &frmPreferences::cboAlbums_Click);
    connect(mUi->cboAlbums, &QComboBox::activated, this, &frmPreferences::ShowChosen);
    connect(mUi->cboSlideShows, &QComboBox::activated, this, &frmPreferences::ShowChosen);
    connect(mUi->optEffects0, &QRadioButton::toggled, this, &frmPreferences::HalfChosen);
    connect(&TheScreens(), &ScreenWatch::Changed, this, &frmPreferences::LoadScreens);
    connect(mUi->cmdSelectAll, &QPushButton::clicked, this,
            [this] { mUi->lstEffects->SetAllSelected(true); });
    connect(mUi->cmdSelectNone, &QPushButton::clicked, this,
            [this] { mUi->lstEffects->SetAllSelected(false); });
    On(mUi->cmdPreview, &QPushButton::clicked, &frmPreferences::cmdPreview_Click);
    On(mUi->lstEffects, &EffectList::NameDblClicked, &frmPreferences::cmdPreview_Click);
    On(mUi->cmdApply, &QPushButton::clicked, &frmPreferences::cmdApply_Click);
    connect(mUi->cmdClose, &QPushButton::clicked, this, &frmPreferences::Unload);
}

void frmPreferences::Form_Load() {
    const QSize Room = screen()->availableSize() - RoomForFrame;
    resize((LastSize().isValid() ? LastSize() : size()).boundedTo(Room));
    PrepareView();
    mState = ReadPreferences(OpenSettings());
    if (DBEngine) DBEngine->ClassifyEffects(mState.EffectLevels, EffectPlaces);
}

bool frmPreferences::Form_Unload() {
    mUi->XShow1->StopEffect();
    if (!isMaximized() && !isMinimized()) LastSize() = size();
    return true;
}

// The picture from which the first preview starts stands there from the beginning.
void frmPreferences::PrepareView() {
    XShow& View = *mUi->XShow1;
    View.SetShowOptionA(true);
    View.SetShowOptionB(true);
    View.SetShowOptionC(true);
    View.SetShowOptionD(true);
    try {
        View.LoadPicture(AppPath() + PreviewPictureAfter(PreviewPictureAfter({})));
    } catch (const Fault&) {
        return;  // a preview says what is wrong with its picture
    }
    View.RunEffect();
    View.StopEffect();
}

void frmPreferences::LoadPreferences() {
    const auto Held = shared_from_this();
    Load();
    LoadAlbums();
    LoadFields();
    LoadEffectsList();
    LoadSpeeds();
    ShowModal();
}

void frmPreferences::LoadAlbums() {
    mState.AlbumName.clear();
    ComboBoxList Albums(*mUi->cboAlbums);
    if (DBEngine) DBEngine->LoadAlbumsCombo(Albums, false);
    OpenAsWideAsNames(*mUi->cboAlbums);
    SayWhatToDo();
    SelectOrNothing(Albums, mState.AlbumID);
    if (Albums.ListIndex() < 0) return;
    mState.AlbumName = Albums.List(Albums.ListIndex());
    LoadSlideShows();
    ComboBoxList SlideShows(*mUi->cboSlideShows);
    SelectOrNothing(SlideShows, mState.SlideShowID);
}

// Those of the album now chosen; none of them is chosen.
void frmPreferences::LoadSlideShows() {
    const ComboBoxList Albums(*mUi->cboAlbums);
    ComboBoxList SlideShows(*mUi->cboSlideShows);
    SlideShows.Clear();
    if (DBEngine && Albums.ListIndex() >= 0)
        DBEngine->LoadSlideShowsCombo(SlideShows, Albums.ItemData(Albums.ListIndex()));
    SlideShows.SetListIndex(-1);
    OpenAsWideAsNames(*mUi->cboSlideShows);
    SayWhatToDo();
}

void frmPreferences::ReceiveEvent(const QString& ObjectType, const QString& EventType,
                                  const EventKeys& EventData) {
    static constexpr const char* Followed[] = {"Delete", "Insert", "Update"};
    const bool Lists = std::any_of(std::begin(Followed), std::end(Followed), [&](const char* Each) {
        return EventType == QLatin1String(Each);
    });
    if (!Lists || EventData.empty()) return;
    if (ObjectType == u"Album") FollowAlbums();
    // An album that another has been laid upon has other shows than before.
    if (EventData[0] == ChosenID(*mUi->cboAlbums)) FollowSlideShows();
}

// The shows of an album that has gone go with it.
void frmPreferences::FollowAlbums() {
    const std::int32_t Was = ChosenID(*mUi->cboAlbums);
    {
        const QSignalBlocker Quiet(mUi->cboAlbums);
        ComboBoxList Albums(*mUi->cboAlbums);
        Albums.Clear();
        if (DBEngine) DBEngine->LoadAlbumsCombo(Albums, false);
        SelectOrNothing(Albums, Was);
        OpenAsWideAsNames(*mUi->cboAlbums);
    }
    if (ChosenID(*mUi->cboAlbums) != Was) LoadSlideShows();
    SayWhatToDo();
}

void frmPreferences::FollowSlideShows() {
    const std::int32_t Was = ChosenID(*mUi->cboSlideShows);
    LoadSlideShows();
    ComboBoxList SlideShows(*mUi->cboSlideShows);
    SelectOrNothing(SlideShows, Was);
}

// What stands in a box in which nothing is chosen.
void frmPreferences::SayWhatToDo() {
    const bool HasAlbums = mUi->cboAlbums->count() > 0;
    mUi->cboAlbums->setPlaceholderText(HasAlbums ? tr("Choose an album")
                                                 : tr("There is no album yet"));
    mUi->cboSlideShows->setPlaceholderText(
        mUi->cboSlideShows->count() > 0       ? tr("Choose a slide show")
        : mUi->cboAlbums->currentIndex() >= 0 ? tr("No slide show in this album")
                                              : QString());
}

void frmPreferences::cboAlbums_Click() {
    LoadSlideShows();
}

// A place in one show is none in another: the number goes with the show that the user chooses, and
// what he types after that stays.
void frmPreferences::ShowChosen() {
    const std::int32_t Chosen = ChosenID(*mUi->cboSlideShows);
    if (std::exchange(mNextSlideOf, Chosen) == Chosen) return;
    mUi->txtNextSlide->setText(QString::number(NextSlideFor(mState, Chosen)));
}

// What the other choice goes by is grey; the names stay within reach, for previews.
void frmPreferences::HalfChosen() {
    const bool ByLevel = mUi->optEffects0->isChecked();
    QWidget* const OfLevel[] = {mUi->sdrMaxEffectLevel, mUi->lblLevelNone, mUi->lblLevelLite,
                                mUi->lblLevelNormal, mUi->lblLevelIntense};
    QWidget* const OfList[] = {mUi->lblEffects, mUi->cmdSelectAll, mUi->cmdSelectNone};
    for (QWidget* Each : OfLevel) Each->setEnabled(ByLevel);
    for (QWidget* Each : OfList) Each->setEnabled(!ByLevel);
    mUi->lstEffects->SetChoosable(!ByLevel);
}

// A chosen screen that is not there now stays chosen.
void frmPreferences::LoadScreens() {
    QComboBox& Box = *mUi->cboScreen;
    const QString Was = Box.count() > 0 ? Box.currentData().toString() : mState.ShowScreen;
    Box.clear();
    Box.addItem(tr("The program's own"), QString());
    Box.addItem(tr("The largest"), LargestScreen);
    const auto There = ScreensThere();
    for (const DesktopScreen& Each : There) Box.addItem(ScreenTitle(Each), ScreenKey(Each));
    const int Found = Was.isEmpty() || Was == LargestScreen ? -1 : ChosenScreen(Was, There, -1);
    const int At =
        Found >= 0 ? Box.count() - static_cast<int>(There.size()) + Found : Box.findData(Was);
    if (At < 0) Box.addItem(tr("%1 (not connected)").arg(TitleOfKey(Was)), Was);
    Box.setCurrentIndex(At >= 0 ? At : Box.count() - 1);
    OpenAsWideAsNames(Box);
}

void frmPreferences::LoadFields() {
    mNextSlideOf = ChosenID(*mUi->cboSlideShows);
    LoadScreens();
    ListKeepings(*mUi->cboKeepPictures, mState.KeepPictures);
    mUi->chkKeepPlace->setChecked(mState.KeepPlace);
    mUi->txtNextSlide->setText(QString::number(mState.NextSlideSeq));
    mUi->txtSlideTimeout->setText(Decimal(mState.SlideTimeout));
    mUi->sdrMaxEffectLevel->setValue(mState.Effects.MaxEffectLevel);
    (mState.Effects.UseEffectLevel ? mUi->optEffects0 : mUi->optEffects1)->setChecked(true);
    HalfChosen();
}

void frmPreferences::LoadEffectsList() {
    EffectList& List = *mUi->lstEffects;
    List.clear();
    for (int Effect = 1; Effect <= EffectPlaces; ++Effect) {
        const auto Place = static_cast<size_t>(Effect);
        mUi->XShow1->SetEffectNumber(Effect);
        const int Row = mState.EffectLevels[Place] - 1;
        List.AddEffect(mUi->XShow1->EffectName(), Effect, tr(EffectLevelRows[Row].Name));
        List.item(List.count() - 1)->setSelected(mState.EffectSelected[Place]);
    }
}

void frmPreferences::LoadSpeeds() {
    FlexGrid& Grid = *mUi->flxEffectSettings;
    Grid.SetRows(static_cast<int>(std::size(EffectLevelRows)));
    for (int Row = 0; Row < Grid.Rows(); ++Row) {
        const EffectLevelRow& Level = EffectLevelRows[Row];
        Grid.SetTextMatrix(Row, ColLevel, tr(Level.Name));
        Grid.SetTextMatrix(Row, ColStep, QString::number(mState.Effects.*Level.Step));
        Grid.SetTextMatrix(Row, ColDelay, QString::number(mState.Effects.*Level.Delay));
    }
}

void frmPreferences::FinishEdits() {
    mUi->flxEffectSettings->FinishEdit();
}

void frmPreferences::cmdPreview_Click() {
    XShow& View = *mUi->XShow1;
    const int Effect = mUi->lstEffects->Number(mUi->lstEffects->currentRow());
    mPreviewPicture = PreviewPictureAfter(mPreviewPicture);
    if (View.IsRunning()) View.StopEffect();
    if (!CheckEffectSettings(Effect)) return;
    View.LoadPicture(AppPath() + mPreviewPicture);
    View.SetEffectNumber(Effect);
    View.RunEffect();
}

bool frmPreferences::CheckEffectSettings(int Effect) {
    const int Level = mState.EffectLevels[static_cast<size_t>(Effect)];
    const SpeedEntry Entry = SpeedInGrid(Level);
    if (const auto Problem = CheckSpeed(Entry, Level)) {
        Refuse(*Problem);
        return false;
    }
    mUi->XShow1->SetEffectDelay(SpeedOf(Entry).Delay);
    mUi->XShow1->SetEffectStep(SpeedOf(Entry).Step);
    return true;
}

SpeedEntry frmPreferences::SpeedInGrid(int Level) const {
    const FlexGrid& Grid = *mUi->flxEffectSettings;
    return {WholeNumberIn(Grid.TextMatrix(Level - 1, ColStep)),
            WholeNumberIn(Grid.TextMatrix(Level - 1, ColDelay))};
}

PreferencesEntries frmPreferences::ReadControls() const {
    PreferencesEntries Entries;
    Entries.Album = Chosen(*mUi->cboAlbums);
    Entries.SlideShow = Chosen(*mUi->cboSlideShows);
    Entries.NextSlide = CInt(Val(mUi->txtNextSlide->text()));
    Entries.SlideTimeout = DecimalIn(mUi->txtSlideTimeout->text());
    Entries.ShowScreen = mUi->cboScreen->currentData().toString();
    Entries.KeepPictures = mUi->cboKeepPictures->currentData().toString();
    Entries.KeepPlace = mUi->chkKeepPlace->isChecked();
    Entries.MaxEffectLevel = mUi->sdrMaxEffectLevel->value();
    Entries.UseEffectLevel = mUi->optEffects0->isChecked();
    for (int Row = 0; Row < mUi->lstEffects->count(); ++Row)
        Entries.Effects.push_back(
            {mUi->lstEffects->Number(Row), mUi->lstEffects->item(Row)->isSelected()});
    for (size_t Row = 0; Row < std::size(EffectLevelRows); ++Row)
        Entries.Speeds[Row] = SpeedInGrid(static_cast<int>(Row) + 1);
    return Entries;
}

// Says what is wrong and goes where it stands.
void frmPreferences::Refuse(const EntryProblem& Problem) {
    MsgBox(Problem.Message, tr("Invalid User Input"), BoxIcon::Information);
    if (Problem.Where == EntryProblem::Field::Timeout) {
        mUi->txtSlideTimeout->setFocus();
        mUi->txtSlideTimeout->selectAll();
        return;
    }
    FlexGrid& Grid = *mUi->flxEffectSettings;
    const int Col = Problem.Where == EntryProblem::Field::Delay ? ColDelay : ColStep;
    Grid.setFocus();
    Grid.setCurrentIndex(Grid.model()->index(Problem.Level - 1, Col));
}

void frmPreferences::cmdApply_Click() {
    mUi->lblApplied->clear();
    const PreferencesEntries Entries = ReadControls();
    if (const auto Problem = CheckEntries(Entries)) return Refuse(*Problem);
    TakeEntries(mState, Entries);
    SavePreferences();
    mUi->lblApplied->setText(tr("These settings are kept."));
    mUi->cmdClose->setFocus();  // who has come for one thing is done by Enter once more
}

void frmPreferences::SavePreferences() {
    clsSettings Settings = OpenSettings();
    PutPreferences(Settings, mState);
    Settings.Save();
}

}  // namespace neb
