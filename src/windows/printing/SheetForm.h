// The body of the two windows that print contact sheets, of an album and of a slide show: the user
// says how many pictures stand on a page and how, sees a drawing of the page, and gets a preview of
// all pages, which are composed beside the window.
#pragma once

#include "controls/forms/Form.h"
#include "printing/PrintDocument.h"
#include "printing/SlidesToPrint.h"

namespace neb {

struct SketchedFoot;
namespace Ui {
class SheetForm;
}

class SheetForm : public Form {
    Q_OBJECT

  public:
    ~SheetForm() override;

  protected:
    // What goes onto the sheets, and what it is called at their foot.
    struct SheetMatter {
        SlidesToPrint Slides;
        QString Name;
    };

    SheetForm();
    Ui::SheetForm& Controls() const { return *mUi; }

    // Refused while the user has something to choose first.
    virtual Answer<> IsChosen() const;
    // As it stands in the database now. Refused when it is no longer there.
    virtual Answer<SheetMatter> Matter() const = 0;
    virtual int SlideCount() const = 0;
    // Whether there is anything that could be printed; if not, the sentence says what to do.
    virtual bool CanPrint() const;
    virtual QString WhatToDo() const;

    std::int32_t AlbumID() const;  // as chosen; 0 for none
    // The album that is to be chosen when the window is loaded; 0: the first one.
    void SetAlbumID(std::int32_t AlbumID) { mAlbumID = AlbumID; }
    std::int32_t TakeAlbumID() { return std::exchange(mAlbumID, 0); }
    virtual void AlbumChosen();
    void UpdateControls();
    void ShowSketch();

    void Form_Load() override;
    bool Form_Unload() override;
    bool IsBusy() const override { return mStage != Stage::Idle; }

  private:
    enum class Stage { Idle, Composing, Stopping, Previewing };
    using Composed = std::shared_ptr<const PrintDocument>;

    void SetUpFields();
    void LoadAlbums();
    GridWish Wish() const;
    Answer<CellGrid> CheckedGrid() const;
    SketchedFoot Foot() const;
    QString Sentence(Answer<CellGrid>& Grid, int Slides) const;
    void Print();
    Composed Compose(const CellGrid& Grid);
    Composed ComposeBeside(const CellGrid& Grid, const SheetMatter& Given);
    bool ShowProgress(const PrintProgress& Now);
    void SetStage(Stage Now);
    void Stop();
    void Close() { Unload(); }

    std::unique_ptr<Ui::SheetForm> mUi;
    std::int32_t mAlbumID = 0;
    Stage mStage = Stage::Idle;
};

}  // namespace neb
