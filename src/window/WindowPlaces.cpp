#include "window/WindowPlaces.h"

#include "app/SettingKeys.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int twipsPerPixel = 15;
constexpr int largestWindow = 32767; ///< pixels a side

QString twips(int pixels)
{
    return QString::number(pixels * twipsPerPixel);
}

/// A stored position on one axis of the screen, which begins at `begin`; one off the screen comes back to there.
int position(const QString &stored, int begin, int length)
{
    const double pixels = stored.toDouble() / twipsPerPixel;
    return pixels >= begin && pixels < begin + length ? static_cast<int>(pixels) : begin;
}
} // namespace

void SaveFF(SettingsStore &settings, const QString &name, const QRect &place)
{
    settings.SaveSetting(name, Keys::Width, twips(place.width()));
    settings.SaveSetting(name, Keys::Height, twips(place.height()));
    settings.SaveSetting(name, Keys::Left, twips(place.left()));
    settings.SaveSetting(name, Keys::Top, twips(place.top()));
}

QRect AlignFF(const SettingsStore &settings, const QString &name, const QRect &window, const QRect &screen)
{
    const QString left = twips(screen.left() + (screen.width() - window.width()) / 2);
    const QString top = twips(screen.top() + (screen.height() - window.height()) / 2);
    QRect place = window;
    place.moveTo(position(settings.GetSetting(name, Keys::Left, left), screen.left(), screen.width()),
                 position(settings.GetSetting(name, Keys::Top, top), screen.top(), screen.height()));
    return place;
}

QSize storedSize(const SettingsStore &settings, const QString &name, QSize byDefault)
{
    const auto pixels = [&](const QString &key, int otherwise) {
        const double stored = settings.GetSetting(name, key).toDouble() / twipsPerPixel;
        return stored >= 1 && stored <= largestWindow ? static_cast<int>(stored) : otherwise;
    };
    return {pixels(Keys::Width, byDefault.width()), pixels(Keys::Height, byDefault.height())};
}

bool hasStoredPlace(const SettingsStore &settings, const QString &name)
{
    return !settings.GetSetting(name, Keys::Left).isEmpty();
}

void saveOnTop(SettingsStore &settings, const QString &name, bool onTop)
{
    settings.SaveSetting(Sections::WindowPosition, name, onTop ? u"1"_s : u"0"_s);
}
