#pragma once

#include <functional>

namespace PANFx::Testing::EventLoop {

/**
 * Delivers posted events, and those that they lead to, until nothing is left to do at this
 * moment. It waits for nothing. A source that never dries up ends it after a bounded number of
 * rounds.
 */
void deliver();

/** Delivers, and deletes what was handed to deleteLater(). */
void deliverAndDelete();

/**
 * Runs the event loop until the condition holds, at most so many milliseconds.
 * @return whether it held
 */
bool waitFor(const std::function<bool()>& condition, int milliseconds = 5000);

/** Runs the event loop for so many milliseconds, for what is told by the clock alone. */
void runFor(int milliseconds);

} // namespace PANFx::Testing::EventLoop
