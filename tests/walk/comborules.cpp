#include "walk/comborules.h"

#include "support/ranges.h"
#include "walk/scene.h"

namespace {

/// Where a list ends whose limits in a damaged document lie far apart.
constexpr int longest = 30000;

ComboRule::Items temperatures(const comborules::LimitsOf &limits)
{
    return [limits](const Scene &scene) -> std::optional<QStringList> {
        const Limits range = limits(scene);
        if (range.low > range.high) {
            return std::nullopt; // The list stays as it was.
        }
        const bool fahrenheit = scene.fahrenheit();
        const int last = fahrenheit ? degrees::fahrenheit(range.high) : range.high;
        QStringList items;
        for (qint64 shown = fahrenheit ? degrees::fahrenheit(range.low) : range.low;
             shown <= last && items.size() < longest; shown += fahrenheit ? 2 : 1) {
            items.append(QString::number(shown) + (fahrenheit ? QStringLiteral("°F") : QStringLiteral("°C")));
        }
        return items;
    };
}

} // namespace

comborules::LimitsOf comborules::always(int low, int high)
{
    return [low, high](const Scene &) { return Limits{low, high}; };
}

comborules::LimitsOf comborules::byWords(const char *list)
{
    return [name = QLatin1String(list)](const Scene &scene) {
        const auto limits = ranges::of(
            name, [&scene](const QString &key) { return scene.word(ranges::path(key)); });
        return Limits{limits.first, limits.second};
    };
}

ComboRule::Items comborules::plain(int low, int high, int step, const char *suffixKey)
{
    return [=](const Scene &scene) {
        const QString suffix = suffixKey == nullptr ? QString() : scene.speak(QLatin1String(suffixKey));
        QStringList items;
        for (int value = low; value <= high; value += step) {
            items.append(QString::number(value) + suffix);
        }
        return items;
    };
}

ComboRule::Items comborules::texts(const std::vector<const char *> &keys)
{
    return [keys](const Scene &scene) {
        QStringList items;
        for (const char *key : keys) {
            items.append(scene.speak(QLatin1String(key)));
        }
        return items;
    };
}

ComboRule::Items comborules::fixed(const QStringList &items)
{
    return [items](const Scene &) { return items; };
}

int comborules::find(const QComboBox &combo, const QString &text)
{
    for (int index = 0; index < combo.count(); ++index) {
        if (combo.itemText(index) == text) {
            return index;
        }
    }
    return -1;
}

int comborules::end(const QComboBox &combo, int value) { return value > 0 ? combo.count() - 1 : 0; }

ComboRule::Shown comborules::atTemperature(const QString &path)
{
    return [path](const Scene &scene, const QComboBox &combo) {
        const int value = scene.number(path);
        const int index = find(combo, degrees::text(scene, value));
        return index >= 0 ? index : end(combo, value);
    };
}

ComboRule::Shown comborules::atIndex(const QString &path, int offset)
{
    return [path, offset](const Scene &scene, const QComboBox &combo) {
        const qint64 index = qint64(scene.number(path)) - offset;
        return index >= 0 && index < combo.count() ? int(index) : -1;
    };
}

ComboRule::Shown comborules::atKey(const QString &path)
{
    return [path](const Scene &scene, const QComboBox &combo) {
        const QString key = scene.text(path);
        return key.isEmpty() ? 0 : qMax(0, find(combo, scene.speak(key)));
    };
}

ComboRule comborules::temperature(const char *name, const QString &path, const LimitsOf &limits)
{
    return {name, temperatures(limits), atTemperature(path), path};
}

ComboRule comborules::clamped(const char *name, const QString &path, const LimitsOf &limits)
{
    return {name, temperatures(limits),
            [path, limits](const Scene &scene, const QComboBox &combo) {
                const Limits range = limits(scene);
                return find(combo, degrees::text(scene, qBound(range.low, scene.number(path), range.high)));
            },
            path};
}

ComboRule comborules::kelvin(const char *name, const QString &path, const LimitsOf &limits)
{
    return {name,
            [limits](const Scene &scene) {
                const Limits range = limits(scene);
                QStringList items;
                for (int value = range.low; value <= range.high; ++value) {
                    items.append(QString::number(value) + QLatin1Char('K'));
                }
                return items;
            },
            [path](const Scene &scene, const QComboBox &combo) {
                const int value = scene.number(path);
                const int index = find(combo, QString::number(value) + QLatin1Char('K'));
                return index >= 0 ? index : end(combo, value);
            },
            path};
}

ComboRule comborules::keyed(const char *name, const QString &path, const std::vector<const char *> &keys)
{
    return {name, texts(keys), atKey(path), path};
}

ComboRule comborules::indexed(const char *name, const ComboRule::Items &items, const QString &path,
                              int offset)
{
    return {name, items, atIndex(path, offset), path};
}

const std::vector<ComboRule> &comborules::all()
{
    static const std::vector<ComboRule> rules = [] {
        std::vector<ComboRule> joined;
        for (const auto &part : {ofOperation(), ofSystem(), ofWater(), ofHotWater(), ofOutdoorMode()}) {
            joined.insert(joined.end(), part.begin(), part.end());
        }
        return joined;
    }();
    return rules;
}
