// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

namespace ovisto {

// Marker codes of JPEG (ITU-T T.81, table B.1).
inline constexpr std::uint16_t kFirstMarker = 0xFF01; ///< anything smaller is not a marker
inline constexpr std::uint16_t kStartOfImage = 0xFFD8;
inline constexpr std::uint16_t kStartOfScan = 0xFFDA;
inline constexpr std::uint16_t kApp0 = 0xFFE0;
inline constexpr std::uint16_t kApp1 = 0xFFE1;

} // namespace ovisto
