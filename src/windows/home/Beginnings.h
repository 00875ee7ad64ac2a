// What a user begins with: a quick show, a new album, an album from elsewhere. Large, with a line
// of plain words each, on the first day; a small row beside the albums later. What a database that
// cannot be changed does not allow is not there.
#pragma once

#include <QWidget>
#include <functional>

namespace neb {

class FirstDay : public QWidget {
    Q_OBJECT

  public:
    // Begin: what is done for a quick show, which is the main window's.
    explicit FirstDay(const std::function<void()>& BeginQuickShow, QWidget* Parent = nullptr);
    void TakeFocus();
    void ShowWhatWorks();

  protected:
    void changeEvent(QEvent* Event) override;
};

class BeginningsRow : public QWidget {
    Q_OBJECT

  public:
    explicit BeginningsRow(const std::function<void()>& BeginQuickShow, QWidget* Parent = nullptr);

  protected:
    void changeEvent(QEvent* Event) override;

  private:
    void Dress();
};

}  // namespace neb
