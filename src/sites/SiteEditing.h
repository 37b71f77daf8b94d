// Changes search-site records as the editor's boxes and buttons ask for it, and shows a record in the boxes. Each
// command answers with its status text. Knows the store.
#pragma once

#include "app/FormGroups.h"
#include "sites/SiteRecords.h"

class SiteEditing : public QObject
{
    Q_OBJECT

  public:
    SiteEditing(ErrorReceiver &log, SiteEditor &editor, const RunFlags &runs, DatabaseHolder &database,
                SiteRecords &records);

    enum class Change { Add, Remove };
    /// What a button of the editor does to one field of the chosen record; field 1 is the record itself.
    [[nodiscard]] QString ModifySearchData(SiteField field, Change change);
    /// Writes one field of the record `site`: a single field takes `value`, a family takes it into its first free slot
    /// or loses it. Nothing while a record is being shown.
    [[nodiscard]] QString GetSearchSiteData(const QString &site, const QString &value, SiteField field, Change change);
    [[nodiscard]] QString AddSearchSite();
    [[nodiscard]] QString DeleteSearchSite();

    /// The name in the first box, if a record has it; otherwise "".
    [[nodiscard]] QString DoesSDExist() const;
    /// The text of box 1 to 8 stands in its list, ignoring case.
    [[nodiscard]] bool IsSDSaved(int box) const;

    /// Fills boxes from the records: 1 the names, 2 to 11 that field of the chosen record, 12 all of it.
    void LoadSearchSiteData(int code);
    static constexpr int allNames = 1, wholeRecord = 12;
    /// Empties the boxes; the list of names too unless it is kept.
    void ClearSD(bool keepSiteList);
    /// Decides which boxes and buttons of the editor may be used: none during a run. With `keepEnabled` what is on
    /// stays on where nothing decides.
    void SetSDState(bool keepEnabled);

    /// The box that shows a field; 9 stands for none.
    [[nodiscard]] static int SDTranslateSDtoSDC(SiteField field);

  private:
    [[nodiscard]] Recordset recordOf(const QString &site);
    [[nodiscard]] QString writeSlot(Recordset &record, SiteField field, const QString &value, Change change);
    [[nodiscard]] QString CollectSearchSiteData(QStringList &elements);
    [[nodiscard]] QString boxValue(SiteField field) const;
    void loadFamily(SiteField field);
    void loadSingles(const QString &site, int code);
    [[nodiscard]] bool canAdd(int box) const;

    ErrorReceiver &mLog;
    SiteEditor &mEditor;
    const RunFlags &mRuns;
    DatabaseHolder &mDatabase;
    SiteRecords &mRecords;
    bool mbLoadingSD =
        false; ///< a record is being shown, or goes from show: the events of the boxes write nothing back
};
