// What the record in the editor's boxes makes of the page on show, as it stands and as it is typed: how many links each
// stage of the chain leaves. Nothing is written, and no run asks. Knows the store.
#pragma once

#include "app/Context.h"
#include "app/FormGroups.h"
#include "sites/SiteRecords.h"
#include "util/AddressList.h"

#include <QTimer>

class SiteCount : public QObject
{
    Q_OBJECT

  public:
    SiteCount(const Context &context, const WindowFrame &frame, SiteEditor &editor, const OptionBoxes &options,
              const RunFlags &runs, BrowserHolder &browser, SiteRecords &records);

    /// All links, then what is left between first and last, by length, by the texts, by the unwanted texts, and the
    /// results: one list for each figure beside the editor.
    static constexpr int figures = 6;
    struct Values
    {
        QStringList firstLink = emptyList(), lastLink = emptyList(), contains = emptyList();
        QStringList containsNot = emptyList(), begin = emptyList(), end = emptyList();
        QString length;
        bool convertHex = false;
    };
    [[nodiscard]] static std::array<QStringList, figures> stagesOf(const QStringList &links, const Values &values);

  Q_SIGNALS:
    /// The links behind a figure are to be shown.
    void linksAsked(const QStringList &links);

  private:
    void pageChanged();
    void changed();
    void show();
    [[nodiscard]] bool isShown() const;
    [[nodiscard]] Values values();
    [[nodiscard]] QStringList family(SiteField field, int box);
    [[nodiscard]] QString length();
    [[nodiscard]] bool hasRecord() const;

    Context mContext;
    const WindowFrame &mFrame;
    SiteEditor &mEditor;
    const OptionBoxes &mOptions;
    const RunFlags &mRuns;
    BrowserHolder &mBrowser;
    SiteRecords &mRecords;
    QTimer mSoon; ///< typing shows its figures once it pauses
    QStringList mLinks;
    std::array<QStringList, figures> mLeft;
    bool mLinksOutdated = true;
};
