#pragma once

#include "core/ports.h"

class QPrinter;

namespace kavro {

/// Prints lines of text after a print dialog; a PDF file is one of its printers.
class TextPrinter : public Printer
{
public:
    /// Always, since a PDF can be made anywhere.
    [[nodiscard]] bool isAvailable() const override { return true; }
    bool print(const QString &title, const QStringList &lines) override;
};

/// Prints the lines page by page, the title and the page's number at each head; lines that are too
/// wide go on below. Returns the number of pages, 0 when the printer refused.
int printLines(QPrinter &printer, const QString &title, const QStringList &lines);

} // namespace kavro
