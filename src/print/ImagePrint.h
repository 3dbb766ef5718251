#pragma once

#include "common/Export.h"
#include "common/SysLogger.h"

#include <QString>

#include <atomic>
#include <cstdint>
#include <string>

class QImage;
struct termios;

/**
 * The instrument's thermal printer on the serial port "/dev/ttyS1".
 *
 * The printer gets no text: a report is drawn into an image 384 dots wide and goes out in bands of
 * 24 dot rows. A report is lines of UTF-8 text, and one line is one line of print. Its layout:
 *
 * - "#text" a heading, in a narrower font where it is too wide;
 * - "a|b|c|d|e" five columns (what follows the fifth is ignored), "a|b|c|d" four columns;
 * - "@text" a line with its letters closer together where it is too wide;
 * - anything else a plain line.
 *
 * The first of these that fits holds. Line 1 (counted from 0) is centred if it is a plain or a
 * "@" line, and so is the plain line 0, or 8 in print mode 2. The paper begins with 32 blank rows,
 * and the last line of the text is not printed: end the text in a line feed.
 *
 * No state of the connection is kept and no thread is started: everything runs on the caller's
 * thread. Operations that talk to the printer and take no descriptor open the port and close it;
 * those with a descriptor work on a port that initPrinter() has opened. Nothing is thrown: results
 * and log lines tell of failures. Only CancelPrint() may be called from another thread.
 */
class QTPANFX_EXPORT ImagePrint
{
public:
    /** Opens nothing: the port is opened by the operations. */
    ImagePrint();
    virtual ~ImagePrint();

    ImagePrint(const ImagePrint&) = delete;
    ImagePrint& operator=(const ImagePrint&) = delete;

    /**
     * @param width printable width in dots, which text widths are compared with; the paper's
     *              image is 384 dots wide whatever it is
     * @param height kept for the interface only
     */
    void setImageSize(int width, int height);

    /// @{
    /**
     * Kept for the interface only: the printout is tuned to fixed fonts, UTF-8 and fixed margins.
     */
    void setFont(std::string name, int size);
    void setCodecName(std::string name);
    void setOffset(int x, int y);
    /// @}

    /** @param mode 2 centres the plain line 8 instead of 0; all other values are alike */
    void setPrintMode(int mode);

    /**
     * Asks a running job to stop. It looks before it opens the port, behind the bytes that start
     * a job, and before each band; a band that has begun goes out whole. printImageString() forgets
     * what was asked before it, Printer_BitImage() called by itself does not.
     */
    void CancelPrint();

    /**
     * Draws and prints a report; blocks for the whole job.
     * @param text lines separated by "\n"; null prints as an empty text
     * @return as Printer_BitImage; -1, with an error line, for a text too long for an image
     */
    int printImageString(const char* text);

    /**
     * Prints the image's first 384 columns: dark pixels become dots. Rows behind the last whole
     * band of 24 are not sent. The dots are saved to "/tmp/print.jpg" too, dots in white.
     * @param lines only named in the log
     * @return 0 done, or cancelled before the file is saved; -1 on a failure, when the printer is
     *         not ready, when cancelled after that, and, with an error line, for a narrower image
     */
    int Printer_BitImage(QImage& image, int lines);

    /**
     * Opens and configures the port: 115200 baud, 8 data bits, no parity, hardware flow control,
     * raw. The settings before are not restored.
     * @param settings not used
     * @return the descriptor, which the caller closes; -1, with an error line, on a failure
     */
    int initPrinter(termios* settings);

    /** Closes a descriptor of at least 1. @param settings not used */
    void deInitPrinter(int fd, termios* settings);

    /** Writes one byte, once. @return the result of write */
    int uart_write_byte(int fd, unsigned char byte);

    /**
     * Writes all bytes. Where the line is blocked it asks the printer for its free buffer space,
     * sleeps up to 18 seconds by the answer, and tries again, for as long as answers come.
     * @return @p length; 0 for no data; -1 on a failure
     */
    int uart_write(int fd, const char* data, int length);

    /**
     * Reads until at least @p min bytes are in, and at most @p max, in at most @p max tries.
     * @return how many came; 0 without a buffer or with a @p max of 0; -1 on a failure
     */
    int uart_read(int fd, char* buffer, int min, int max);

    /** As uart_read, but waits for the bytes, four times 0.3 seconds. @return -1 if none came */
    int uart_read_select(int fd, char* buffer, int min, int max);

    /**
     * Sends a command and waits for its answer. Mind the order: @p max stands before @p min.
     * @param answer gets up to @p max bytes
     * @return 1 for an answer of exactly @p min bytes, 0 for a longer one, -1 on a failure
     */
    int sendCmd2Printer(int fd, const char* command, int length, char* answer, int max, int min);

    /**
     * Asks the printer whether it is ready.
     * @return 0 ready; -1 for the answer 0x7E or a negative @p fd; -2 for any other and for none
     */
    int checkStatusPrinter(int fd);

    /** Asks, on a port opened for it, for the free bytes of the printer's buffer; -1 on a failure.
     */
    int checkPrinterRxBuf();

    /** Resets the printer and empties its buffer, on a port opened for it. @return 0, or -1 */
    int clearPrintBuffer();

protected:
    std::int32_t m_nWidth = 384; ///< dots; what text widths are compared with

    /// @{
    /** Kept for the interface only. */
    std::int32_t m_nHeight = 20;
    std::string m_strFontName = "Droid Sans Mono";
    std::int32_t m_nFontSize = 24;
    std::string m_strCodecName = "UTF-8";
    std::int32_t m_nOffsetX = 10;
    std::int32_t m_nOffsetY = 32;
    /// @}

    QString m_strText;                  ///< the last text printed
    std::int32_t m_nPrintMode = 0;      ///< 2, or any other number
    std::atomic<bool> m_bCancel{false}; ///< set from another thread
    PANFx::Common::SysLogger m_logger{"QTPANFx", "ImagePrint"};

private:
    int freeSpaceForBlockedWrite();
    int sendBands(int fd, const QImage& dots);
    bool sendBand(int fd, const QImage& dots, int band);
    int stopBands(int fd);
};
