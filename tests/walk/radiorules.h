#pragma once

#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

class Scene;

/// Radios of one choice: the name of the one that is to be checked, "" for none, nothing where the document
/// doesn't tell.
struct RadioRule {
    const char *page;
    QString radios; ///< separated by blanks
    std::function<std::optional<QString>(const Scene &)> checked;
    QString path = {}; ///< what they write, too, and nothing else; none where controlrows.cpp tells that
};

/// The rules of all radios, by hand.
const std::vector<RadioRule> &radioRules();
