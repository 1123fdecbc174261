#include "service/InvoicePdf.h"

#include <cstdio>
#include <vector>

namespace demo {

namespace {

struct Line {
    int x; ///< Points from the left edge.
    int y; ///< Points from the lower edge.
    int size; ///< Points.
    const char* text;
};

constexpr Line lines[] = {
    {72, 730, 22, "Velmaro Online"},
    {72, 704, 11, "Invoice 2026-1031"},
    {72, 650, 11, "To: Robin Alder, 12 Orchard Rise, Ellery"},
    {72, 600, 11, "Velmaro Online, yearly plan"},
    {480, 600, 11, "48.00"},
    {72, 580, 11, "Account group, up to ten drivers"},
    {480, 580, 11, "24.00"},
    {72, 548, 13, "Total"},
    {480, 548, 13, "72.00"},
    {72, 480, 9, "This invoice belongs to the demo account. Nothing was bought, nothing is due."},
};

std::string pageContent()
{
    std::string content = "0.04 0.43 0.39 rg 72 768 468 4 re f 0.07 0.13 0.17 rg\n";
    content += "0.75 0.78 0.78 RG 72 568 m 540 568 l S\n";
    for (const auto& [x, y, size, text] : lines) {
        char operators[64];
        std::snprintf(operators, sizeof operators, "BT /F1 %d Tf %d %d Td (", size, x, y);
        content.append(operators).append(text).append(") Tj ET\n");
    }
    return content;
}

} // namespace

std::string invoicePdf()
{
    const std::string content = pageContent();
    const std::string page = "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 612 792] /Contents 4 0 R"
                             " /Resources << /Font << /F1 5 0 R >> >> >>";
    const std::vector<std::string> objects{
        "<< /Type /Catalog /Pages 2 0 R >>",
        "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
        page,
        "<< /Length " + std::to_string(content.size()) + " >>\nstream\n" + content + "endstream",
        "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica /Encoding /WinAnsiEncoding >>",
    };

    std::string pdf = "%PDF-1.4\n%\xE2\xE3\xCF\xD3\n";
    std::string table = "0000000000 65535 f \n";
    for (std::size_t index = 0; index < objects.size(); ++index) {
        char entry[32];
        std::snprintf(entry, sizeof entry, "%010zu 00000 n \n", pdf.size());
        table += entry;
        pdf += std::to_string(index + 1) + " 0 obj\n" + objects[index] + "\nendobj\n";
    }
    const std::string size = std::to_string(objects.size() + 1);
    const std::string start = std::to_string(pdf.size());
    return pdf + "xref\n0 " + size + "\n" + table + "trailer\n<< /Size " + size
        + " /Root 1 0 R >>\nstartxref\n" + start + "\n%%EOF\n";
}

} // namespace demo
