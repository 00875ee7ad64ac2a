#include "support/windows/DesktopBoxes.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>

#include "support/windows/ScreenPointer.h"

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

// "Name (*.a;*.b)|*.a;*.b|..." as the toolkit wants it: "Name (*.a *.b);;...".
QString ToolkitFilters(const QString& Filters) {
    QStringList Out;
    const QStringList Pieces = Filters.split(u'|', Qt::SkipEmptyParts);
    for (qsizetype I = 0; I + 1 < Pieces.size(); I += 2) {
        const QString Name = Pieces[I].section(u'(', 0, 0).trimmed();
        Out << Name + QStringLiteral(" (") + QString(Pieces[I + 1]).replace(u';', u' ') + u')';
    }
    return Out.join(QStringLiteral(";;"));
}

}  // namespace

BoxAnswer DesktopBoxes::Show(const BoxRequest& Request) {
    const PointerScope Normal(Pointer::Default);
    QMessageBox Box(QApplication::activeWindow());
    Box.setWindowTitle(Request.Title.isEmpty() ? QApplication::applicationDisplayName()
                                               : Request.Title);
    Box.setTextFormat(Qt::PlainText);
    Box.setText(Request.Text);
    Box.setIcon(BoxIconFor(Request.Icon));
    if (Request.Buttons == BoxButtons::Ok) {
        Box.setStandardButtons(QMessageBox::Ok);
        Box.exec();
        return BoxAnswer::Ok;
    }
    Box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    Box.setDefaultButton(QMessageBox::Yes);
    Box.setEscapeButton(QMessageBox::No);
    return Box.exec() == QMessageBox::Yes ? BoxAnswer::Yes : BoxAnswer::No;
}

QString DesktopFileDialogs::OpenFile(const QString& Title, const QString& StartDir,
                                     const QString& Filters) {
    return QFileDialog::getOpenFileName(QApplication::activeWindow(), Title, StartDir,
                                        ToolkitFilters(Filters));
}

QString DesktopFileDialogs::SaveFile(const QString& Title, const QString& StartPath,
                                     const QString& Filters) {
    return QFileDialog::getSaveFileName(QApplication::activeWindow(), Title, StartPath,
                                        ToolkitFilters(Filters));
}

QString DesktopFileDialogs::ChooseFolder(const QString& Title, const QString& StartDir) {
    return QFileDialog::getExistingDirectory(QApplication::activeWindow(), Title, StartDir);
}

}  // namespace neb
