// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QString>
#include <QStringConverter>

#include "platform/Status.h"

/// The reader of text files, line by line; sys::TextWriter writes them. The bytes are Windows-1252
/// (AnsiCodec.h), unless the caller asks for detection.
namespace text {

/// Opens an ordinary file for reading. FileNotFound where there is none; PathAccess for a folder, a device, a
/// pipe (which could block or never end) and whatever the user may not read.
Status openForInput(QFile& file, const QString& path);

/// The line ends when reading.
enum class LineEnds {
    CarriageReturn,  ///< CR or CR LF; a lone LF is a character of the line
    Any,             ///< CR, LF or CR LF
};

/// The encoding of a file that is read.
enum class Encoding {
    Ansi,      ///< Windows-1252
    Detected,  ///< UTF-16 with a byte order mark; UTF-8, with or without one, where the whole file is valid
               ///< UTF-8; otherwise Windows-1252. The mark and every U+0000 are left out.
};

/// Reads a file forward, one line at a time, with no more of it in memory than one line and one block. The
/// end of the file ends a last line that has no line end; there is no empty line after a final line end. Its
/// destructor closes the file.
class LineReader {
  public:
    /// A longer line, in bytes, ends the reading with DeviceIo.
    static constexpr qsizetype longestLine = 64 * 1024 * 1024;

    Status open(const QString& path, LineEnds ends, Encoding encoding = Encoding::Ansi);

    /// Reads Windows-1252 bytes that the caller has, as if they were in a file of that name.
    void openBytes(const QByteArray& bytes, LineEnds ends, const QString& name);

    /// True when no line is left, or when nothing is open.
    bool atEnd();

    /// The next line without its end: false, with `line` unchanged, at the end of the file or after a
    /// failure.
    bool nextLine(QString& line);

    /// The next line as a statement that must succeed: InputPastEnd at the end of the file, DeviceIo when the
    /// file cannot be read on. `line` keeps its content then.
    Status readLine(QString& line);

    /// The failure that ended nextLine(), if it was one.
    const Status& status() const { return m_status; }

  private:
    bool fill();
    void detect();
    QString decoded(const QByteArray& bytes) const;

    QFile m_file;
    QByteArray m_block;
    qsizetype m_position = 0;
    LineEnds m_ends = LineEnds::Any;
    Encoding m_encoding = Encoding::Ansi;
    bool m_utf8 = false;         ///< whether the bytes of m_block are UTF-8
    QStringDecoder m_fromUtf16;  ///< valid for a file of UTF-16, whose blocks become UTF-8
    QStringEncoder m_toUtf8;
    Status m_status;
};

}  // namespace text
