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

/// The set of images for a scale: 96, 120 or 144 DPI; 0 below 100 percent and between two sets.
int imageSet(int percent);

} // namespace scale
