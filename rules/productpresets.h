#pragma once

#include <array>

/// What a choice of the product page writes besides the document that it loads.
namespace presets {

struct Preset {
    const char *path;
    const char *value;
};

/// What makes a document that of an Aquabox, in the order of the writes.
extern const std::array<Preset, 35> aquabox;

/// What makes a document that of a heating-only high temperature product, in the order of the writes.
extern const std::array<Preset, 8> highTemp;

} // namespace presets
