// Proposes the directories that a path being typed may mean. They are listed on a helper thread,
// so that typing never waits. Used by DirectoryTree.
#pragma once

#include <QObject>
#include <QStringList>
#include <QTimer>
#include <memory>

#include "support/work/AheadQueue.h"

QT_BEGIN_NAMESPACE
class QLineEdit;
class QStringListModel;
QT_END_NAMESPACE

namespace neb {

class DirectoryProposals : public QObject {
    Q_OBJECT

  public:
    explicit DirectoryProposals(QLineEdit* Field);  // belongs to Field
    // Proposes nothing more until the user types again.
    void End();

  private:
    void Typed(const QString& Text);
    void LookAtNames();

    QLineEdit* mField;
    QStringListModel* mModel;
    QString mBeginning;  // the typed path up to its last separator
    std::unique_ptr<AheadQueue<QString, QStringList>> mNames;
    QTimer mLook;  // runs while the names are read
};

}  // namespace neb
