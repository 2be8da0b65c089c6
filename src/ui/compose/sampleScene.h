// A small scene with edges, colours and soft areas, on which thumbnails show what an effect does.
#pragma once
#include "pixels/Bits.h"

namespace velara {

constexpr int kSceneSide = 44;

Bits sampleScene();

} // namespace velara
