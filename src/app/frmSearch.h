// The main window's state as a passive object: the named controls, flags and arrays through which the runs, the
// window's events and the status display talk to one another. What is done with them lives in the classes above. Knows
// controls.
#pragma once

#include "controls/ControlArray.h"
#include "controls/ListControls.h"
#include "controls/NumberBox.h"
#include "controls/SimpleControls.h"
#include "util/AddressList.h"

class frmSearch : public QObject
{
    Q_OBJECT

  public:
    frmSearch();

    /// The control of that name, an array member as "chkSMA(9)"; null if there is none.
    [[nodiscard]] Control *control(const QString &name) const;

    // Tabs and status.
    TabControl sstSearch, sstSettings, sstFiles, sstMiscOptions;
    PictureBox picStatus, picANEnd;

    // Auto: the run.
    Button cmdANStart, cmdANInitialize;
    Label lblTrawlexTimer;
    NumberBox incANTiming;
    ComboBox cboANWBSelect;

    // Auto: where it starts from.
    CheckBox chkUseSavedUrls;
    ComboBox cboANList, cboANSavedUrls;
    Button cmdANSavedAdd, cmdANSavedMinus, cmdANSavedGo;

    // Auto: what is saved, and the labels that report it.
    CheckBox chkSaveSummary, chkSavePages, chkSaveEmail, chkSavePhone, chkSaveUrl, chkMCMNCStop;
    Label lblSummarySaved, lblPageSaved, lblEmailSaved, lblPhoneSaved, lblUrlSaved;
    ComboBox cboANSaveType;
    TextBox txtANStartTag, txtANStopTag;
    CheckBox chkUrlBlocking, chkEmailBlocking;

    // Auto: criteria.
    ComboBox cboANMCMNCMask;
    Button cmdANMCMaskAdd, cmdANMCMaskMinus, cmdANAddMC, cmdANAddMNC;
    CheckBox chkMustContain, chkMustNotContain, chkMCCS, chkMNCCS;
    Label lblMCColor, lblMNCColor;
    ListBox lstANMC, lstANMNC;
    ComboBox lstANMCAllAny, lstANMNCAllAny;
    Label lblAutoCollect, lblAutoPgUrls, lblAutoIncrPos;

    // Manual, as far as the Auto run and the end of the program touch it.
    Button cmdMNStart;
    ComboBox cboMNList, cboFilesSites;
    NumberBox incMNTiming, incMNDLTiming, incMNAutoUrl, incMNStep;

    // Settings.
    ControlArray<CheckBox> chkSMA, chkSMD, chkSMV;
    CheckBox chkSaveToSS, chkSaveToFile, chkPutInOneFile;
    NumberBox incNotFoundMinSize, incSFMinFileSize, incSFMinGraphicSize, incSMDMinHtmlSize, incSMAMAutoTxtElng;
    NumberBox incSMAIEWidth, incSMAIEHeight, incSmRPPause;
    TextBox txtSFDBDir, txtSFDBFile, txtSFMNDir, txtSFEditor, txtSBSelAreaCodes;
    ListBox lstBlockedUrlC, lstBlockedEmailC;

    // Flags.
    bool mbInitialized = false;     ///< a browser is connected; both runs end when it is not
    bool mbInternalBrowser = false; ///< the connected browser is the built-in one
    bool mbFormReady = false;       ///< option clicks write their settings from here on
    bool mbMainShown = false;       ///< set last at start
    bool mbANRunning = false, mbMNRunning = false;
    bool mbANCancel = false, mbMNCancel = false; ///< the run is to stop at its next check
    bool mbANMCMNCStopped = false, mbMNMCMNCStopped = false;
    bool mbPassUrlsLoaded = false; ///< cboANSavedUrls shows PassUrls

    // The walk. Arrays are never without elements; empty is one "".
    QStringList mastrLinks = emptyList();       ///< the addresses that the Auto run walks
    int mlngANLinkIndex = 0;                    ///< survives a stop, so that Go resumes
    QStringList mastrSavedUrlIds = emptyList(); ///< name, line end, address; same order as cboANSavedUrls
    QStringList mastrQB = emptyList();          ///< Quick Block texts
    QString mstrANStartUrl;                     ///< where "Return to start page on finish." leads
    int mlngAutoCollectState = 0;               ///< 0 to 11
};
