// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The look and the language of a program with windows, at its start. Main thread only.
namespace startlook
{

/// Pictures, palette, icon and the ring of the focus. Once; needs the application object.
void install();

/// Fonts and translations of the language in use.
void speak();

} // namespace startlook
