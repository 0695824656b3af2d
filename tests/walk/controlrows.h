#pragma once

#include <vector>

/// What touching controls of a page writes, and the pages that it then loads, where that is more than the one
/// path of its rule (comborules.h, radiorules.h). Names are separated by blanks.
/// Paths stand below the page's root, or with "/" below the document's. One with "~" is written only while
/// there is one circuit, and a word with "@" stands for a group of paths.
struct ControlRow {
    const char *page;
    const char *controls;
    const char *paths;
    const char *loads = "";
};

/// The rows of such controls.
const std::vector<ControlRow> &controlRows();
