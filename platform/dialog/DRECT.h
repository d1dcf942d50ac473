#pragma once

/// Place and size of a dialog object in pixels; a size of 0 means that there is none yet.
struct DRECT {
    int x = 0;
    int y = 0;
    int dx = 0; ///< width
    int dy = 0; ///< height

    friend bool operator==(const DRECT&, const DRECT&) = default;
};
