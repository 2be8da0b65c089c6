// A small scene with edges, colours and soft areas for thumbnails of effects.
#pragma once
#include "pixels/Bits.h"

namespace velara {

constexpr int kSceneSide = 44;

Bits sampleScene();

} // namespace velara
