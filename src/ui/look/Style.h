// How widgets are drawn: flat, rounded by 4 pixels, every colour from the widget's own palette, so that light, dark and
// any scale come out right without a second set of rules. Everything not told here is Fusion's.
#pragma once

#include <QProxyStyle>

class Style : public QProxyStyle
{
    Q_OBJECT

  public:
    static constexpr double radius = 4.0;
    static constexpr int rowHeight = 28;
    /// Of the button that stands out and of what stands beside it: two rows and the gap between them.
    static constexpr QSize accentSize{76, 2 * rowHeight + 8};
    /// Dynamic property of the one button that stands out.
    static constexpr const char *accentProperty = "accent";

    /// Dynamic property of a button that takes the accent while it can be pressed, and keeps its size.
    static constexpr const char *callingProperty = "calling";
    /// Dynamic property of a button that shows its shape only under the mouse.
    static constexpr const char *quietProperty = "quiet";

    Style();

    /// Mnemonics are underlined only while the user holds Alt.
    void setUnderlines(bool shown) { mUnderlines = shown; }

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override;
    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                                         const QWidget *widget) const override;
    [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                                       const QWidget *widget) const override;
    [[nodiscard]] QRect subElementRect(SubElement element, const QStyleOption *option,
                                       const QWidget *widget) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                                QStyleHintReturn *data) const override;
    void polish(QWidget *widget) override;
    using QProxyStyle::polish;

  private:
    bool mUnderlines = false;
};
