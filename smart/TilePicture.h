// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// What the picture of a tile of Disk Status tells; Same: the tile keeps the picture that it has.
enum class TilePicture { Good, Average, Bad, Unknown, Same };
