// A slide show made into a film: what is wrong with it first, the choices, how large it will be;
// then what is seen in it while it is made, and what came of it. A child of the main window: one
// works on in others meanwhile. It follows what is done to its show as long as no film is being
// made.
#pragma once

#include "controls/forms/Form.h"
#include "show/film/FilmMaker.h"
#include "windows/frame/modBroadcast.h"

namespace neb {

namespace Ui {
class frmFilm;
}
class FilmForecast;
class FilmRun;
struct FilmStep;

class frmFilm : public Form, public ChangeReceiver {
    Q_OBJECT

  public:
    frmFilm();
    ~frmFilm() override;

    // Shows the window for the show as it is stored.
    void MakeFilmOf(std::int32_t AlbumID, std::int32_t SlideShowID);
    // Whether the film that is being made goes there.
    bool IsMaking(const QString& Path) const;
    // The film that is being made is given up, and nothing of it is left.
    void StopUnasked();
    void ReceiveEvent(const QString& ObjectType, const QString& EventType,
                      const EventKeys& EventData) override;

  protected:
    void Form_Load() override;
    bool Form_QueryUnload() override;
    bool Form_Unload() override;
    // Esc ends what is under way, and closes what is over.
    void reject() override;
    void changeEvent(QEvent* Event) override;

  private:
    enum class Phase { Choosing, Making, Stopping, Made };
    Phase PhaseNow() const;

    void SetUpGrid();
    void LoadIcons();
    void Connect();
    const clsNEBSlideShow* Show() const;
    void FollowShow();
    void ShowPhase();
    void ShowTitle(const QString& Before);

    FilmOrder Order() const;
    void AskForecast();
    void ShowForecast();
    void ShowExpected(const QString& Size);
    void ForecastFailed(const QString& Reason);
    void ShowFindings(const std::vector<std::pair<QString, RehearsalFinding>>& Rows);

    void Make();
    bool IsReady(const FilmOrder& Order);
    void Begin(const FilmOrder& Order);
    void Advanced(const FilmStep& Step);
    void Ended();
    void Failed(const QString& Reason);
    void ShowMade(const FilmReport& Report);
    void Stop();
    bool AsksToStop(const QString& Text);
    void Another();
    void OpenFilm();
    void OpenFolder();
    void FindingChosen(int Row);
    void Close() { Unload(); }

    // The show, by its keys.
    struct Of {
        std::int32_t AlbumID = 0, SlideShowID = 0;
    };

    std::unique_ptr<Ui::frmFilm> mUi;
    Of mOf;
    FilmForecast* mForecast;
    FilmRun* mRun;
};

}  // namespace neb
