#pragma once
// The arithmetic of strength training without a window: goals, calories and conversions.
