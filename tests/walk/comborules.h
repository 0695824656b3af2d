#pragma once

#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

class QComboBox;
class Scene;

/// What a combo box is to offer and to show by what the document holds; nothing where the document doesn't
/// tell.
struct ComboRule {
    using Items = std::function<std::optional<QStringList>(const Scene &)>;
    using Shown = std::function<std::optional<int>(const Scene &, const QComboBox &)>;

    const char *name; ///< Page/control
    Items items;
    Shown shown;
    QString path = {}; ///< what it writes, too, and nothing else; none where controlrows.cpp tells that
};

struct Limits {
    int low;
    int high;
};

/// The rules by hand: each list from the ranges that it may have, each selection from the value's mapping.
namespace comborules {

using LimitsOf = std::function<Limits(const Scene &)>;

/// Fixed limits.
LimitsOf always(int low, int high);
/// Those of tests/data/ranges.tsv.
LimitsOf byWords(const char *list);

// Items
ComboRule::Items plain(int low, int high, int step = 1, const char *suffixKey = nullptr);
ComboRule::Items texts(const std::vector<const char *> &keys);
ComboRule::Items fixed(const QStringList &items);

// Selections
/// The item of the value's text; what the list doesn't hold lands on its end when positive, else on its
/// start.
ComboRule::Shown atTemperature(const QString &path);
/// The item that stands at the value less the offset, or none.
ComboRule::Shown atIndex(const QString &path, int offset);
/// The item of the language key, or the first.
ComboRule::Shown atKey(const QString &path);
/// The index of the item with that text, or -1.
int find(const QComboBox &combo, const QString &text);
/// The end of the list that stands for a value that it doesn't hold.
int end(const QComboBox &combo, int value);

// Rows
ComboRule temperature(const char *name, const QString &path, const LimitsOf &limits);
/// A load shows such a value inside the limits.
ComboRule clamped(const char *name, const QString &path, const LimitsOf &limits);
ComboRule kelvin(const char *name, const QString &path, const LimitsOf &limits);
ComboRule indexed(const char *name, const ComboRule::Items &items, const QString &path, int offset);
ComboRule keyed(const char *name, const QString &path, const std::vector<const char *> &keys);

/// The rows of all pages, but for the twenty boxes of the seasonal mode, which have rules of their own.
const std::vector<ComboRule> &all();

std::vector<ComboRule> ofOperation();
std::vector<ComboRule> ofSystem();
std::vector<ComboRule> ofWater();
std::vector<ComboRule> ofHotWater();
/// The six boxes of the outdoor mode.
std::vector<ComboRule> ofOutdoorMode();

} // namespace comborules
