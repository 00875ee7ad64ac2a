// What a film is to be like, as controls: its file, format, size, frames, quality, captions, and
// the slides from and to. All but the slides is remembered from film to film. Used by frmFilm.
#pragma once

#include <QWidget>
#include <memory>

#include "show/film/FilmOrder.h"

namespace neb {

namespace Ui {
class FilmChoices;
}

class FilmChoices : public QWidget {
    Q_OBJECT

  public:
    explicit FilmChoices(QWidget* Parent = nullptr);
    ~FilmChoices() override;

    // As the last film, with a file of that name.
    void Propose(const QString& ShowName);
    // Of the show now. Who had all of them has all of them still.
    void SetSlides(int Count);
    // The album and the show are for the caller to add.
    FilmOrder Order() const;
    void Remember() const;
    // The control in which the mistake is for which CheckFilmOrder refuses the order.
    void PointOut(const FilmOrder& Order);

  Q_SIGNALS:
    void Changed();

  private:
    void FillLists();
    void Connect();
    void ShowOrder(const FilmOrder& Order);
    void Browse();
    void FileTyped();
    void FormatChosen();
    void SizeChosen();
    void ShowQuality();
    FilmFormat Format() const;
    QString Path() const;

    std::unique_ptr<Ui::FilmChoices> mUi;
    QString mFolder;  // that was proposed
};

}  // namespace neb
