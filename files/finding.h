#pragma once

#include <QString>

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
};

using Findings = std::vector<Finding>;
