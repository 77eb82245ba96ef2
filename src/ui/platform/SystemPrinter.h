#pragma once

#include "core/Printer.h"

#include <memory>

class QPrinter;

/// The printer, or the PDF file, that the user chose in the system's print dialog. Pages are scaled as a
/// whole onto the chosen paper and stand in its middle; copies, collation, order and page range are those of
/// the dialog.
class SystemPrinter final : public Printer {
public:
    SystemPrinter();
    SystemPrinter(const SystemPrinter&) = delete;
    SystemPrinter& operator=(const SystemPrinter&) = delete;
    ~SystemPrinter() override;

    bool choose() override;
    /// A file that the dialog has named takes one document. The next one that comes without a dialog, and any
    /// where there is no printer, has the user choose first; cancelling prints nothing.
    void print(const PrintableDocument& document) override;
    /// Prints on the device as it stands, without a question.
    void printOnDevice(const PrintableDocument& document);

    /// The device behind this printer, created at first use. A program without a screen sets a PDF file here.
    [[nodiscard]] QPrinter& device();

private:
    std::unique_ptr<QPrinter> device_;
    /// A dialog was confirmed and nothing printed since.
    bool chosen_ = false;
};
