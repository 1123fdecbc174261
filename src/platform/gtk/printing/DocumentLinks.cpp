#include "platform/gtk/printing/DocumentLinks.h"

#include <exception>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

namespace gtk {

namespace {

using Object = QPDFObjectHandle;

// `page` may be clicked to, and is `height` points high.
Object annotation(const DocumentLink& link, const Object& page, double height)
{
    const auto& [origin, size] = link.area;
    const Object::Rectangle area(
        origin.x, height - origin.y - size.height, origin.x + size.width, height - origin.y);
    auto result = Object::parse("<< /Type /Annot /Subtype /Link /Border [0 0 0] >>");
    result.replaceKey("/Rect", Object::newFromRectangle(area));
    if (link.target) {
        auto destination = Object::parse("[/XYZ null]");
        destination.insertItem(0, page);
        destination.appendItem(Object::newReal(height - *link.target));
        destination.appendItem(Object::newNull());
        result.replaceKey("/Dest", destination);
    } else {
        auto action = Object::parse("<< /S /URI >>");
        action.replaceKey("/URI", Object::newString(link.address));
        result.replaceKey("/A", action);
    }
    return result;
}

platform::Data written(QPDF& document)
{
    QPDFWriter writer(document);
    writer.setOutputMemory();
    writer.setStreamDataMode(qpdf_s_preserve);
    writer.write();
    const auto buffer = writer.getBufferSharedPointer();
    const auto* bytes = reinterpret_cast<const std::byte*>(buffer->getBuffer());
    return {bytes, bytes + buffer->getSize()};
}

} // namespace

platform::Data withLinks(platform::Data document, const std::vector<DocumentLink>& links)
{
    if (links.empty())
        return document;
    try {
        QPDF pdf;
        pdf.setSuppressWarnings(true);
        pdf.processMemoryFile(
            "document", reinterpret_cast<const char*>(document.data()), document.size());
        const auto pages = QPDFPageDocumentHelper(pdf).getAllPages();
        if (pages.size() != 1)
            return document;
        auto page = pages.front().getObjectHandle();
        const auto height = page.getKey("/MediaBox").getArrayAsRectangle().ury;
        auto annotations = Object::newArray();
        for (const auto& link : links)
            annotations.appendItem(pdf.makeIndirectObject(annotation(link, page, height)));
        page.replaceKey("/Annots", annotations);
        return written(pdf);
    } catch (const std::exception&) {
        return document;
    }
}

} // namespace gtk
