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
    void print(const PrintableDocument& document) override;

    /// The device behind this printer, created at first use. A program without a screen sets a PDF file here.
    [[nodiscard]] QPrinter& device();

private:
    std::unique_ptr<QPrinter> device_;
};
