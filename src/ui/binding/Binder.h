// Binds controls to widgets by name: the objectName of a widget is its control's name, an array member's "chkSMA(9)"
// written chkSMA_9. A control that stands on more than one tab has a widget on each; behind the name of the second one
// stands "_on" and where it stands ("lblTrawlexTimer_onManual"). Each change of a control is shown once per turn of the
// event loop, however many changes came together.
//
// The controls outlive the widgets. A control without a widget is fine.
#pragma once

#include "ui/binding/Bindings.h"

#include <QPointer>
#include <QStringList>
#include <QWidget>

/// One control and its widget.
class Binding : public QObject
{
    Q_OBJECT

  public:
    Binding(Control &control, QWidget &widget, Bindings::Bound bound);
    /// Makes the widget match.
    void show();
    [[nodiscard]] Control &control() const { return mControl; }

  Q_SIGNALS:
    void outdated(Binding *self);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    void showColours();
    void showWords();
    [[nodiscard]] QString ownWords() const;
    bool mousePressed(const QEvent &event);
    bool keyPressed(const QEvent &event);

    Control &mControl;
    QWidget &mWidget;
    Bindings::Bound mBound;
    QString mDesignedName;
    bool mOutdated = false;
};

class Binder : public QObject
{
    Q_OBJECT

  public:
    /// The objectName of the (first) widget for a control's name.
    [[nodiscard]] static QString widgetName(const QString &controlName);

    /// Binds all controls that are children of `form` to the widgets of their name below `root`, and shows them.
    void bindAll(const QObject &form, QWidget &root);
    /// Shows at once what has changed.
    void flush();
    /// Shows everything again, as after a change of the desktop's colours.
    void showAll();
    /// Names of the controls that have a widget.
    [[nodiscard]] QStringList boundControls() const;

  private:
    void take(Control &control, QWidget &widget, Bindings::Bound bound);
    void noteOutdated(Binding *binding);
    void bindOne(Control &control, QWidget &widget);
    template <class SomeControl, class SomeWidget> bool tryBind(Control &control, QWidget &widget);

    std::vector<QPointer<Binding>> mBindings, mOutdated;
};
