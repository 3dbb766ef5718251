#pragma once

/**
 * @file
 * The calls into the system that the way to the printer makes: no other file makes them.
 */

#include <string>

namespace PANFx::Print {

/**
 * Opens a port and sets it to 115200 baud, 8 data bits, no parity, hardware flow control, raw.
 * What has come in before is dropped. Whether it could be set is not asked.
 * @return the descriptor; below 0, with the reason in errno, when it can't be opened
 */
int openLine(const std::string& path);

/** One write. @return as write; a size below 0 fails like a call that the system refuses */
int writeBytes(int fd, const char* data, int size);

/** One read. @return as read; a size below 0 fails like a call that the system refuses */
int readBytes(int fd, char* buffer, int size);

/** Closes a port. */
void closeLine(int fd);

/** Waits 0.3 seconds for bytes to read. @return as select: 1 when there are, 0 for none, -1 */
int waitForBytes(int fd);

/** Does nothing for so long. */
void pauseSeconds(unsigned seconds);

/** Does nothing for so long. */
void pauseMicroseconds(unsigned microseconds);

} // namespace PANFx::Print
