#include "window/WindowPlaces.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int twipsPerPixel = 15;

QString twips(int pixels)
{
    return QString::number(pixels * twipsPerPixel);
}

/// A stored position on the screen's axis; beyond the screen, or negative, it is 0.
int position(const QString &stored, int bound)
{
    const double pixels = stored.toDouble() / twipsPerPixel;
    return pixels > 0 && pixels < bound ? static_cast<int>(pixels) : 0;
}
} // namespace

void SaveFF(SettingsStore &settings, const QString &name, const QRect &place)
{
    settings.SaveSetting(name, u"NSWE_W"_s, twips(place.width()));
    settings.SaveSetting(name, u"NSWE_H"_s, twips(place.height()));
    settings.SaveSetting(name, u"NSWE_L"_s, twips(place.left()));
    settings.SaveSetting(name, u"NSWE_T"_s, twips(place.top()));
}

QRect AlignFF(const SettingsStore &settings, const QString &name, const QRect &window, const QRect &screen)
{
    const QString left = twips((screen.width() - window.width()) / 2);
    const QString top = twips((screen.height() - window.height()) / 2);
    QRect place = window;
    place.moveTo(position(settings.GetSetting(name, u"NSWE_L"_s, left), screen.width()),
                 position(settings.GetSetting(name, u"NSWE_T"_s, top), screen.height()));
    return place;
}

QSize storedSize(const SettingsStore &settings, const QString &name, QSize byDefault)
{
    const auto pixels = [&](const QString &key, int otherwise) {
        const int stored = static_cast<int>(settings.GetSetting(name, key).toDouble() / twipsPerPixel);
        return stored > 0 ? stored : otherwise;
    };
    return {pixels(u"NSWE_W"_s, byDefault.width()), pixels(u"NSWE_H"_s, byDefault.height())};
}

bool hasStoredPlace(const SettingsStore &settings, const QString &name)
{
    return !settings.GetSetting(name, u"NSWE_L"_s).isEmpty();
}

void saveOnTop(SettingsStore &settings, const QString &name, bool onTop)
{
    settings.SaveSetting(u"Window Position"_s, name, onTop ? u"1"_s : u"0"_s);
}
