// The texts of a list control for the views. It holds a copy that shares its texts with the control's, so taking over
// ten thousand of them costs next to nothing.
#pragma once

#include <QAbstractListModel>
#include <QStringList>

class TextListModel : public QAbstractListModel
{
    Q_OBJECT

  public:
    using QAbstractListModel::QAbstractListModel;

    /// Shows `texts`; texts that were only added behind the old ones leave selection and place as they are.
    void setTexts(const QStringList &texts);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;

  private:
    QStringList mTexts;
};
