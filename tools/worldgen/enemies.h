#pragma once
// Pictures of the enemies for the battle screen, 192 x 192 on black.
#include "gear.h"

namespace worldgen {

constexpr int kEnemyScale = 3;
std::vector<PictureFile> enemyFiles();

} // namespace worldgen
