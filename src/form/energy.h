#pragma once

namespace zephon {

struct Energy {
  float energyKWh = 0;
  bool clearEnergyRequest = false;  // the next polling pass clears the total
};

}  // namespace zephon
