#include "QORPlatform/dom/QORDomError.h"

#include "QORPlatform/dom/QORDomCall.h"
#include "QORPlatform/dom/XMLString.h"

#include <xercesc/dom/DOMException.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/XMLException.hpp>

#include <memory>
#include <new>

QORDomError::QORDomError(const std::string& iMessage) : std::runtime_error(iMessage) {}

QORDomError::~QORDomError() = default;

namespace {

[[noreturn]] void Raise(const XMLCh* iMessage) {
    const auto release = [](char* iText) {
        XMLString::release(&iText);
    };
    const std::unique_ptr<char, decltype(release)> message(
        XMLString::transcode(reinterpret_cast<const unsigned short*>(iMessage)), release);
    throw QORDomError(message ? message.get() : "the XML library gives no reason");
}

} // namespace

void QORRaiseAsOurs() {
    try {
        throw;
    } catch (const xercesc::OutOfMemoryException&) {
        throw std::bad_alloc();
    } catch (const xercesc::DOMException& refusal) {
        Raise(refusal.getMessage());
    } catch (const xercesc::XMLException& refusal) {
        Raise(refusal.getMessage());
    }
}
