#include "controls/forms/DesktopBoxes.h"

#include <QApplication>
#include <QFileDialog>
#include <QGridLayout>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSpacerItem>
#include <algorithm>

#include "controls/forms/ScreenPointer.h"
#include "controls/forms/StandOver.h"
#include "controls/forms/frmMsgBoxEx.h"
#include "support/modFUFL.h"
#include "support/modText.h"

namespace neb {
namespace {

QMessageBox::Icon BoxIconFor(BoxIcon Icon) {
    switch (Icon) {
        case BoxIcon::Information:
            return QMessageBox::Information;
        case BoxIcon::Question:
            return QMessageBox::Question;
        case BoxIcon::Critical:
            return QMessageBox::Critical;
        case BoxIcon::Plain:
            break;
    }
    return QMessageBox::NoIcon;
}

const QString AllFiles = QStringLiteral("*.*");

// "Name (*.a;*.b)|*.a;*.b|..." as the toolkit wants it: "Name (*.a *.b);;...".
QString ToolkitFilters(const QString& Filters) {
    QStringList Out;
    const QStringList Pieces = Filters.split(u'|', Qt::SkipEmptyParts);
    for (qsizetype I = 0; I + 1 < Pieces.size(); I += 2) {
        const QString Name = Pieces[I].section(u'(', 0, 0).trimmed();
        QStringList Masks = QString(Pieces[I + 1]).split(u';');
        Masks.replaceInStrings(AllFiles, QStringLiteral("*"));  // names without a dot as well
        Out << Name + QStringLiteral(" (") + Masks.join(u' ') + u')';
    }
    return Out.join(QStringLiteral(";;"));
}

// Who looks for a file is to see it, whatever its kind: of filters in the toolkit's form the one
// that shows most.
QString WidestOf(const QString& Offered) {
    const QStringList Filters = Offered.split(QStringLiteral(";;"));
    return *std::ranges::max_element(
        Filters, {}, [](const QString& Each) { return Each.count(QStringLiteral("*")); });
}

// Of a toolkit's filter for one kind of file, such as ".pdf"; empty for any other.
QString ExtensionOf(const QString& Filter) {
    static const QRegularExpression OneKind(QStringLiteral("\\(\\*(\\.[^.*? ]+)\\)$"));
    return OneKind.match(Filter).captured(1);
}

QString TitleOf(const BoxRequest& Request) {
    return Request.Title.isEmpty() ? QApplication::applicationDisplayName() : Request.Title;
}

// A message box grows with its text, in the end beyond the screen with its button.
bool IsTooLong(const BoxRequest& Request) {
    constexpr qsizetype MostLines = 25, MostLetters = 2500;
    return Request.Buttons == BoxButtons::Ok &&
           (Request.Text.count(u'\n') >= MostLines || Request.Text.size() > MostLetters);
}

void AddYesNo(QMessageBox& Box, const BoxRequest& Request) {
    Box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    if (!Request.YesWords.isEmpty()) Box.button(QMessageBox::Yes)->setText(Request.YesWords);
    if (!Request.NoWords.isEmpty()) Box.button(QMessageBox::No)->setText(Request.NoWords);
    Box.setDefaultButton(Request.Default == BoxAnswer::Yes ? QMessageBox::Yes : QMessageBox::No);
    Box.setEscapeButton(QMessageBox::No);
}

// Discard is called so on every desktop: some would have it say something about closing.
void AddSaveDiscardCancel(QMessageBox& Box) {
    Box.setStandardButtons(QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    Box.button(QMessageBox::Discard)->setText(QObject::tr("&Discard"));
    Box.setDefaultButton(QMessageBox::Cancel);
    Box.setEscapeButton(QMessageBox::Cancel);
}

// The toolkit's box is as narrow as its words: the title is read as well, and so are paths.
void Widen(QMessageBox& Box, const BoxRequest& Request) {
    constexpr int RoomForPaths = 560, ButtonsOfTitle = 160;
    auto* const Rows = qobject_cast<QGridLayout*>(Box.layout());
    if (!Rows) return;
    const int Title =
        Box.fontMetrics().horizontalAdvance(TitleOf(Request) + QStringLiteral(" — ") +
                                            QGuiApplication::applicationDisplayName()) +
        ButtonsOfTitle;
    const int Wide = Request.Details.isEmpty() ? Title : std::max(Title, RoomForPaths);
    Rows->addItem(new QSpacerItem(Wide, 0), Rows->rowCount(), 0, 1, Rows->columnCount());
}

// A box that tells something shows all of it; one that asks leaves the list for whoever wants it.
void OpenDetails(QMessageBox& Box) {
    for (QAbstractButton* Each : Box.buttons())
        if (Box.buttonRole(Each) == QMessageBox::ActionRole) Each->click();
    Box.setDefaultButton(QMessageBox::Ok);  // which Enter presses, as in any other
}

void Fill(QMessageBox& Box, const BoxRequest& Request) {
    Box.setWindowTitle(TitleOf(Request));
    Box.setTextFormat(Qt::PlainText);
    Box.setText(ReadableText(Request.Text));
    Box.setIcon(BoxIconFor(Request.Icon));
    if (!Request.Details.isEmpty()) Box.setDetailedText(ReadableText(Request.Details));
    if (Request.Buttons == BoxButtons::Ok)
        Box.setStandardButtons(QMessageBox::Ok);
    else if (Request.Buttons == BoxButtons::YesNo)
        AddYesNo(Box, Request);
    else
        AddSaveDiscardCancel(Box);
    Widen(Box, Request);
    if (Request.Buttons == BoxButtons::Ok) OpenDetails(Box);
}

BoxAnswer AnswerOf(int Button, BoxButtons Buttons) {
    switch (Button) {
        case QMessageBox::Yes:
            return BoxAnswer::Yes;
        case QMessageBox::Save:
            return BoxAnswer::Save;
        case QMessageBox::Discard:
            return BoxAnswer::Discard;
        default:
            return AnswerOfClosing(Buttons);
    }
}

}  // namespace

BoxAnswer DesktopBoxes::Show(const BoxRequest& Request) {
    if (IsTooLong(Request)) {
        NewForm<frmMsgBoxEx>()->ShowMsgBox(TitleOf(Request), ReadableText(Request.Text));
        return BoxAnswer::Ok;
    }
    const PointerScope Normal(Pointer::Default);
    // The window below may go while the box is up, and takes the box with it.
    const QPointer<QMessageBox> Box = new QMessageBox(WindowInUse());
    Fill(*Box, Request);
    const int Button = Box->exec();
    delete Box;
    AwaitFocus();
    return AnswerOf(Button, Request.Buttons);
}

QString DesktopFileDialogs::OpenFile(const QString& Title, const QString& StartDir,
                                     const QString& Filters) {
    const auto Over = qScopeGuard(&AwaitFocus);
    const QString Offered = ToolkitFilters(Filters);
    QString Chosen = WidestOf(Offered);
    return QFileDialog::getOpenFileName(WindowInUse(), Title, StartDir, Offered, &Chosen);
}

QString DesktopFileDialogs::SaveFile(const QString& Title, const QString& StartPath,
                                     const QString& Filters) {
    const auto Over = qScopeGuard(&AwaitFocus);
    QString Filter;
    const QString Path =
        QFileDialog::getSaveFileName(WindowInUse(), Title, StartPath, ToolkitFilters(Filters),
                                     &Filter, QFileDialog::DontConfirmOverwrite);
    const bool IsWhole = Path.isEmpty() || GetFileName(Path).contains(u'.');
    return IsWhole ? Path : Path + ExtensionOf(Filter);
}

QString DesktopFileDialogs::ChooseFolder(const QString& Title, const QString& StartDir) {
    const auto Over = qScopeGuard(&AwaitFocus);
    return QFileDialog::getExistingDirectory(WindowInUse(), Title, StartDir);
}

}  // namespace neb
