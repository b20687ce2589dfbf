#pragma once

#include <QtGlobal>

/// Keys that screens and rules tell by their characters.

constexpr ushort enterKey = 13;
