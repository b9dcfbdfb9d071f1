// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The scale of the display in percent, and what it makes of sizes. Main thread only.
namespace scale
{

/// The scale for so many dots per inch. Between 100 and 125 it is 125, between 125 and 150 it is 150.
int percentForDpi(int dotsPerInch);

/// The scale of this display, as GlobalApp::m_fScale holds it.
int percent();

/// A design size in pixels at a scale, truncated.
int scaled(int size, int percent);

/// The set of images for a scale: 96, 120, 144, 168 or 192 DPI. From 150 percent on the largest set that is
/// not above the scale; below that only the exact scale has one, else 0.
int imageSet(int percent);

} // namespace scale
