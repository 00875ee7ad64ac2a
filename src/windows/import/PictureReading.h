// Reads directories and named files for an import window, under the window of the progress: each
// picture becomes a row of those not yet selected, in the order that is chosen, and what is passed
// over is noted by name.
#pragma once

#include <QStringList>
#include <optional>

#include "windows/import/PictureRows.h"
#include "windows/import/ReadingReport.h"
#include "windows/lists/SlideReading.h"

namespace neb {

class ImportOptions;

class PictureReading {
  public:
    // Where pictures come from: what is named, else the directory.
    struct Source {
        QString Directory;
        bool Recurse = false;
        QStringList Named;  // files, and directories with their separator
    };

    PictureReading(Form& Window, const ImportOptions& Options, FlexGrid& NonSelected,
                   FlexGrid& Selected);

    PictureRows& Rows() { return mRows; }

    // What was passed over, when it was read to its end; nothing when it was stopped, by the user
    // or by the end of the window. The rows made until then stay.
    std::optional<ReadingReport> Read(const Source& From);
    bool IsReading() const { return mReading.IsReading(); }
    // From the Form_Unload of the window.
    void WindowClosed() { mReading.WindowClosed(); }
    // ImportForm::SortFiles.
    void SortFiles(QStringList& Paths);

  private:
    struct Found;

    SlideReading::Order Order(const Source& From, const std::shared_ptr<Found>& To);
    void Collect(const Source& From, Found& To);
    void TakeNamed(const Source& From, Found& To, const QString& Path);
    void TakeDirectory(const QString& Directory, bool Recurse, Found& To);
    void BeginAhead(Found& Pictures);
    void TakeNext(Found& Pictures, const QString& Path);
    void MakeRow(Found& Pictures, int Number);
    int ListedSide() const;

    Form& mWindow;
    const ImportOptions& mOptions;
    const std::vector<FlexGrid*> mLists;
    PictureRows mRows;
    SlideReading mReading;
};

}  // namespace neb
