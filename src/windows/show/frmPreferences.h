// Preferences: the active slide show, how long a slide stays, and the effects that shows may use,
// with a preview of each. Opened by modSlideShows for the main window, the projector and others.
#pragma once

#include "controls/forms/Form.h"
#include "show/PreferencesState.h"
#include "windows/frame/modBroadcast.h"

namespace neb {

namespace Ui {
class frmPreferences;
}

class frmPreferences : public Form, public ChangeReceiver {
    Q_OBJECT

  public:
    frmPreferences();
    ~frmPreferences() override;

    // What the settings file says once the window is loaded, then what was applied.
    std::int32_t AlbumID() const { return mState.AlbumID; }
    void SetAlbumID(std::int32_t ID) { mState.AlbumID = ID; }
    const QString& AlbumName() const { return mState.AlbumName; }
    void SetAlbumName(const QString& Name) { mState.AlbumName = Name; }
    std::int32_t SlideShowID() const { return mState.SlideShowID; }
    void SetSlideShowID(std::int32_t ID) { mState.SlideShowID = ID; }
    double SlideTimeout() const { return mState.SlideTimeout; }  // seconds
    void SetSlideTimeout(double Seconds) { mState.SlideTimeout = Seconds; }

    // Fills the controls and shows the window modally; returns when it has closed.
    void LoadPreferences();
    // The lists of albums and shows follow; what is chosen stays, unless it has gone.
    void ReceiveEvent(const QString& ObjectType, const QString& EventType,
                      const EventKeys& EventData) override;

  protected:
    void FinishEdits() override;
    void Form_Load() override;
    bool Form_Unload() override;

  private:
    void SetUpGrid();
    void ConnectControls();
    void PrepareView();
    void LoadAlbums();
    void LoadSlideShows();
    void FollowAlbums();
    void FollowSlideShows();
    void SayWhatToDo();
    void LoadFields();
    void LoadEffectsList();
    void LoadSpeeds();
    void LoadScreens();
    void cboAlbums_Click();
    void ShowChosen();
    void HalfChosen();
    void cmdPreview_Click();
    void cmdApply_Click();
    bool CheckEffectSettings(int Effect);
    SpeedEntry SpeedInGrid(int Level) const;
    PreferencesEntries ReadControls() const;
    void Refuse(const EntryProblem& Problem);
    void SavePreferences();

    std::unique_ptr<Ui::frmPreferences> mUi;
    PreferencesState mState;
    QString mPreviewPicture;        // the last one's file name
    std::int32_t mNextSlideOf = 0;  // the show that the place in txtNextSlide belongs to
};

}  // namespace neb
