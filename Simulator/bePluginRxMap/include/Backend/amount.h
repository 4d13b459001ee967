#pragma once

/// How a product is measured out.
enum class Amount { Unknown, Count, Volume, Weight };
