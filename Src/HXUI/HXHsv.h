#pragma once

/// A colour as hue (degrees, 0 to 360), saturation and value (0 to 1 each).
struct HXHsv {
  float hue = 0;
  float saturation = 0;
  float brightness = 0;
};

/// A colour as red, green and blue, 0 to 1 each.
struct HXRgb {
  float red = 0;
  float green = 0;
  float blue = 0;
};

/// The conversions of the colour dialog: the usual hexagonal model, except
/// that pure red has the hue 360 and not 0. Any thread.
HXRgb ToRgb(HXHsv hsv);
HXHsv ToHsv(HXRgb rgb);
