// What the lists of the seasonal auto mode hold. Their engine by itself: tst_autoengine.cpp,
// core/tst_autoranges.cpp.

#include "walk/seasonalrules.h"

#include "walk/comborules.h"
#include "walk/exceptions.h"
#include "walk/scene.h"

namespace {

/// The list runs from the highest to the lowest of its limits and of what the neighbours show, each with a
/// margin. Neighbours in brackets count with two circuits only.
struct Box {
    const char *combo;
    const char *path;
    const char *list;  ///< in tests/data/ranges.tsv
    const char *above; ///< it starts at these
    const char *below; ///< it ends at these
    int marginAbove = 0;
    int marginBelow = 0;
};

// clang-format off
const Box boxes[] = {
    {"HeatingOutdoorMin", "heatOutTemp.min", "heatingOutdoor", "", "HeatingOutdoorMax", 0, 1},
    {"HeatingOutdoorMax", "heatOutTemp.max", "heatingOutdoor", "HeatingOutdoorMin", "CoolingOutdoorMin", 1, 5},
    {"CoolingOutdoorMin", "coolOutTemp.min", "coolingOutdoor", "HeatingOutdoorMax", "CoolingOutdoorMax", 5, 1},
    {"CoolingOutdoorMax", "coolOutTemp.max", "coolingOutdoor", "CoolingOutdoorMin", "", 1, 0},
    {"HeatingWaterMax", "heatWaterTemp.max", "heatingWater", "HeatingWaterMin [MainZoneHeatingWaterMax]", ""},
    {"HeatingWaterMin", "heatWaterTemp.min", "heatingWater", "[MainZoneHeatingWaterMin]", "HeatingWaterMax"},
    {"CoolingWaterMax", "coolWaterTemp.max", "coolingWater", "CoolingWaterMin", "[MainZoneWaterMax]"},
    {"CoolingWaterMin", "coolWaterTemp.min", "coolingWater", "", "CoolingWaterMax [MainZoneWaterMin]"},
    {"MainZoneHeatingWaterMax", "heatWaterTempMainZone.max", "heatingWater", "MainZoneHeatingWaterMin", "HeatingWaterMax"},
    {"MainZoneHeatingWaterMin", "heatWaterTempMainZone.min", "heatingWater", "", "MainZoneHeatingWaterMax HeatingWaterMin"},
    {"MainZoneWaterMax", "coolWaterTempMainZone.max", "coolingWater", "MainZoneWaterMin CoolingWaterMax", ""},
    {"MainZoneWaterMin", "coolWaterTempMainZone.min", "coolingWater", "CoolingWaterMin", "MainZoneWaterMax"},
    {"HeatingIndoorMax", "heatAirTemp.max", "heatingIndoor", "HeatingIndoorMin [MainZoneHeatingIndoorMax]", ""},
    {"HeatingIndoorMin", "heatAirTemp.min", "heatingIndoor", "[MainZoneHeatingIndoorMin]", "HeatingIndoorMax"},
    {"CoolingIndoorMax", "coolAirTemp.max", "coolingIndoor", "CoolingIndoorMin", "[MainZoneIndoorMax]"},
    {"CoolingIndoorMin", "coolAirTemp.min", "coolingIndoor", "", "CoolingIndoorMax [MainZoneIndoorMin]"},
    {"MainZoneHeatingIndoorMax", "heatAirTempMainZone.max", "heatingIndoor", "MainZoneHeatingIndoorMin", "HeatingIndoorMax"},
    {"MainZoneHeatingIndoorMin", "heatAirTempMainZone.min", "heatingIndoor", "", "MainZoneHeatingIndoorMax HeatingIndoorMin"},
    {"MainZoneIndoorMax", "coolAirTempMainZone.max", "coolingIndoor", "MainZoneIndoorMin CoolingIndoorMax", ""},
    {"MainZoneIndoorMin", "coolAirTempMainZone.min", "coolingIndoor", "CoolingIndoorMin", "MainZoneIndoorMax"},
};
// clang-format on

Limits limitsOf(const Scene &scene, const Box &box) { return comborules::byWords(box.list)(scene); }

QString nameOf(const QString &box) { return QStringLiteral("InstallationaAuto/combo") + box; }

const QComboBox &combo(const Scene &scene, const QString &box)
{
    return *scene.control<QComboBox>(nameOf(box));
}

QStringList neighbours(const Scene &scene, const char *names)
{
    const bool oneCircuit = scene.text(
                                QStringLiteral("SettingInfo.installation.circuitMainZone.enableMainZone"))
        == QLatin1String("CLR");
    QStringList result;
    const auto words = QString::fromLatin1(names).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (QString word : words) {
        const bool bracketed = word.startsWith(QLatin1Char('['));
        if (!bracketed || !oneCircuit) {
            result.append(word.remove(QLatin1Char('[')).remove(QLatin1Char(']')));
        }
    }
    return result;
}

Limits narrowed(const Scene &scene, const Box &box)
{
    Limits limits = limitsOf(scene, box);
    for (const QString &other : neighbours(scene, box.above)) {
        limits.low = qMax(limits.low,
                          degrees::of(scene, combo(scene, other).currentText()) + box.marginAbove);
    }
    for (const QString &other : neighbours(scene, box.below)) {
        limits.high = qMin(limits.high,
                           degrees::of(scene, combo(scene, other).currentText()) - box.marginBelow);
    }
    return limits;
}

QStringList listed(const Scene &scene, const Limits &limits)
{
    return comborules::temperature("", QString(), comborules::always(limits.low, limits.high))
        .items(scene)
        .value_or(QStringList());
}

/// What a load selects in the box's widest list.
QString loadedText(const Scene &scene, const Box &box)
{
    const Limits limits = limitsOf(scene, box);
    const int value = scene.number(QStringLiteral("SettingInfo.installation.seasonalAutoOption.")
                                   + QLatin1String(box.path));
    const QString text = degrees::text(scene, value);
    if (listed(scene, limits).contains(text)) {
        return text;
    }
    return degrees::text(scene, value > 0 ? limits.high : limits.low);
}

QStringList items(const QComboBox &box)
{
    QStringList texts;
    for (int index = 0; index < box.count(); ++index) {
        texts.append(box.itemText(index));
    }
    return texts;
}

/// The word of the name that tells the group.
QString groupOf(const QString &name)
{
    for (const char *group : {"Outdoor", "Water", "Indoor"}) {
        if (name.contains(QLatin1String(group))) {
            return QLatin1String(group);
        }
    }
    return {};
}

} // namespace

void SeasonalRules::noteBlanks(const Scene &scene)
{
    for (const Box &box : boxes) {
        const QComboBox &widget = combo(scene, QLatin1String(box.combo));
        if (widget.currentIndex() < 0 && widget.count() > 0) {
            lost.insert(nameOf(QLatin1String(box.combo)));
        }
    }
}

/// Boxes narrow one another inside three groups: outdoor, water and indoor.
bool SeasonalRules::isAnyLostOf(const QString &group) const
{
    return std::any_of(lost.begin(), lost.end(), [&](const QString &name) { return name.contains(group); });
}

QStringList SeasonalRules::complaints(const Scene &scene)
{
    noteBlanks(scene);
    QStringList result;
    for (const Box &box : boxes) {
        const QString name = nameOf(QLatin1String(box.combo));
        const QComboBox &widget = combo(scene, QLatin1String(box.combo));
        if (!widget.isVisible()) {
            continue;
        }
        const Limits widest = limitsOf(scene, box);
        if (widest.low > widest.high && exceptions::note("crossed limits")) {
            continue;
        }
        const QString expected = loadedText(scene, box);
        const bool isLost = lost.contains(name) && exceptions::note("seasonal blank");
        const bool isZero = widget.currentIndex() < 0 || degrees::of(scene, widget.currentText()) == 0
            || widget.currentText() == QStringLiteral("0°F");
        if (isLost ? !isZero : widget.currentText() != expected && !exceptions::excuse(scene, name)) {
            result.append(
                QStringLiteral("%1 shows \"%2\" for \"%3\"").arg(name, widget.currentText(), expected));
        }
        const Limits limits = narrowed(scene, box);
        const bool isUnknown = (isAnyLostOf(groupOf(name))
                                && exceptions::note("seasonal neighbours of a blank"))
            || (limits.low > limits.high && exceptions::note("crossed limits"));
        if (!isUnknown && items(widget) != listed(scene, limits)) {
            result.append(QStringLiteral("%1 lists %2 for %3 to %4")
                              .arg(name, items(widget).join(QLatin1Char(' ')))
                              .arg(limits.low)
                              .arg(limits.high));
        }
    }
    return result;
}
