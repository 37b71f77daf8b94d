// Saved Urls and PassUrls: start addresses under short names, one table of each kind for a list letter. The combo box
// cboANSavedUrls shows one kind at a time, with mastrSavedUrlIds beside it. Knows sites.
#pragma once

#include "app/Context.h"
#include "app/FormGroups.h"
#include "driver/Navigation.h"
#include "sites/SiteRecords.h"
#include "store/MaskNames.h"

class SavedUrls : public QObject
{
    Q_OBJECT

  public:
    /// What GetSavedUrl answers.
    enum class Answer { Index = 0, Name = 1, Url = 2 };
    /// The two kinds, as GetNewMaskName numbers them.
    enum class Kind { PassUrl = 1, SavedUrl = 2 };

    SavedUrls(const Context &context, SavedAddresses &saved, const OptionBoxes &options, DatabaseHolder &database,
              BrowserHolder &browser, SiteRecords &records, Navigation &navigation);

    /// Looks into mastrSavedUrlIds: the element at `index`, or with a negative one the element equal to `item`, else
    /// the one named `name`, else the one of address `url`; "" if there is none.
    [[nodiscard]] QString GetSavedUrl(Answer answer, int index, const QString &item, const QString &name,
                                      const QString &url);
    /// Fills box and array from the table of the list letter in force; a row without a name gets one.
    void LoadSavedUrls(Kind kind);
    /// A name that the table of that kind has not yet: "PassUrl-100" or "Results-100" and on. `table` replaces the
    /// table where it is not empty.
    [[nodiscard]] QString GetNewMaskName(Kind kind, const QString &table = {});
    /// A new name for `url`, or "" if the table holds it already.
    [[nodiscard]] QString ExistsSavedUrl(const QString &url, const QString &table);
    /// Stores the address of the page on show. An empty letter means the list on show.
    void AddSavedUrl(bool report, const QString &letter);
    void RemoveSavedUrl();
    /// Opens the chosen address and, where the option of its kind says so, moves to the next.
    void cmdANSavedGo_Click();
    /// Remembers the position in the Saved Urls of the list on show.
    void SaveSavedUrlPos();
    void SetSavedUrlPos();
    /// The next SetSavedUrlPos() begins at the first item.
    void ResetSavedUrlPos();
    /// The address of the chosen item; "" if none is.
    [[nodiscard]] QString chosenAddress();

    /// The family name joined with the list letter in force.
    [[nodiscard]] QString table(Kind kind) const;

  Q_SIGNALS:
    /// A chosen address is about to be opened by hand.
    void opening();

  private:
    void refillBox();
    [[nodiscard]] QString positionKey() const;

    Context mContext;
    SavedAddresses &mSaved;
    const OptionBoxes &mOptions;
    DatabaseHolder &mDatabase;
    BrowserHolder &mBrowser;
    SiteRecords &mRecords;
    Navigation &mNavigation;
    NewMaskNames mNewNames;
};
