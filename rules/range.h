#pragma once

/// What a list offers or a value keeps to. Both ends belong to it.
struct Range {
    int low;
    int high;
};
