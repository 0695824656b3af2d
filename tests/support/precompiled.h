#pragma once

// What nearly every test includes. Each file includes what it uses all the same: the checks read it without
// this.

#include <QtTest>
#include <QtWidgets>

#include <functional>
#include <memory>
#include <optional>
