#pragma once

#include <QStringList>

#include <vector>

/// How bad a finding is: the controller can't mean it; the wizard's own steps can leave it; it passes
/// through.
enum class Severity { Note, Warning, Error };

/// Something about one value of a settings file.
struct Finding {
    Severity severity;
    QString path;  ///< empty for the file as a whole
    QString value; ///< as it stands in the file; empty where there is none
    QString what;
    QStringList offered = {}; ///< items of the list that doesn't hold it, in keys and °C
};

using Findings = std::vector<Finding>;
