#include "platform/gtk/printing/PageOutput.h"

#include <utility>

namespace gtk {

void PageOutput::createPDF(
    double width, std::function<void(const PageDocument::Result&)> completion)
{
    const auto document = std::make_shared<PageDocument>(view_, width);
    documents_.push_back(document);
    document->start([this, weakDocument = std::weak_ptr(document),
                        completion = std::move(completion)](const auto& result) {
        const auto kept = weakDocument.lock(); // until this is over
        std::erase(documents_, kept);
        completion(result);
    });
}

std::shared_ptr<PrintOperation> PageOutput::print(const platform::NSPrintInfo& printInfo)
{
    std::erase_if(prints_, [](const auto& print) { return print->hasEnded(); });
    prints_.push_back(std::make_shared<PrintOperation>(view_, printInfo, choice_));
    return prints_.back();
}

bool PageOutput::fail(const std::string& reason)
{
    const auto documents = documents_; // those who are told may let go of this
    for (const auto& document : documents)
        document->fail(reason);
    return !documents.empty();
}

} // namespace gtk
