// The desktop's own message boxes and file dialogs: what the program uses unless a test answers.
#pragma once

#include "support/Services.h"

namespace neb {

class DesktopBoxes : public MessageBoxes {
  public:
    BoxAnswer Show(const BoxRequest& Request) override;
};

class DesktopFileDialogs : public FileDialogs {
  public:
    QString OpenFile(const QString& Title, const QString& StartDir,
                     const QString& Filters) override;
    QString SaveFile(const QString& Title, const QString& StartPath,
                     const QString& Filters) override;
    QString ChooseFolder(const QString& Title, const QString& StartDir) override;
};

}  // namespace neb
