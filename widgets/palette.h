#pragma once

#include <QLatin1String>

#include <array>

/// The colours of the window. The style sheet names them with an @; scripts/images reads them here for the
/// pictures.
namespace palette {

struct Colour {
    const char *name;
    const char *value;
};

/// Where one is and what one chose.
inline constexpr Colour accent{"@accent", "#A50034"};
/// Under the mouse, and pressed.
inline constexpr Colour over{"@over", "#BF1F52"};
inline constexpr Colour press{"@press", "#7D0027"};
/// What is still open.
inline constexpr Colour open{"@open", "#D62B1F"};
/// What is done.
inline constexpr Colour done{"@done", "#2E7D4F"};
/// Where the keyboard is.
inline constexpr Colour focus{"@focus", "#1D5FA6"};
inline constexpr Colour text{"@text", "#333333"};
/// Choices, as pages tell them in style sheets of their own.
inline constexpr Colour choice{"@choice", "#212121"};
/// Captions, and what is said in passing.
inline constexpr Colour quiet{"@quiet", "#555555"};
/// The edge of what can be set, and the handles of scroll bars: 3 to 1 against paper and ground.
inline constexpr Colour edge{"@edge", "#848486"};
/// What only structures: edges of cards and bars.
inline constexpr Colour line{"@line", "#D6D6D7"};
/// Between groups of rows.
inline constexpr Colour hairline{"@hairline", "#E6E6E7"};
/// Bullets, which stand for nothing.
inline constexpr Colour pale{"@pale", "#A0A0A2"};
inline constexpr Colour ground{"@ground", "#F2F2F2"};
/// At the side of what is about cooling, and about heating, which have the same captions.
inline constexpr Colour cool{"@cool", "#A9C6DB"};
inline constexpr Colour warm{"@warm", "#E3C08F"};
/// Behind the caption of the step that is shown.
inline constexpr Colour tint{"@tint", "#F9ECF0"};

inline constexpr std::array all{accent, over, press,    open, done,   focus, text, choice, quiet,
                                edge,   line, hairline, pale, ground, tint,  cool, warm};

} // namespace palette
