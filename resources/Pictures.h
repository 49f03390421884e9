#pragma once

#include "resources/EmbeddedFile.h"

// The pictures drawn by the toolkit and the wizard, each a whole PNG file of
// 8 bits per sample. Sizes are in pixels.

/// The picture on the left of the wizard: 160 by 310, RGB without alpha.
extern const EmbeddedFile kBannerPng;

/// Two check boxes side by side, 14 by 14 each, RGBA: left unchecked, right checked.
extern const EmbeddedFile kCheckBoxPng;

/// The combo box's dark face, under light text: 110 by 17, RGBA, the arrow in the right 20.
extern const EmbeddedFile kComboLightTextPng;

/// The combo box's light face, under black text: the same shape.
extern const EmbeddedFile kComboBlackTextPng;

/// The search box's magnifier: 16 by 16, RGBA, light grey on nothing.
extern const EmbeddedFile kSearchPng;

/// The search box's clear button, a cross: 16 by 15, RGBA, light grey on nothing.
extern const EmbeddedFile kClearPng;
