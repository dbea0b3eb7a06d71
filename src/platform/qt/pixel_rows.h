// Pixels for whoever is outside the toolkit.
#pragma once

#include <QImage>

#include "platform/pixel_block.h"

namespace trameli {

/// Copies a picture of opaque 32-bit pixels into a block and returns how many rows that were: none
/// if the block has another size.
int ReadRows(const QImage& from, const PixelBlock& into);

}  // namespace trameli
