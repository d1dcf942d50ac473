#include "QORPlatform/dom/QORDomState.h"

#include "QORPlatform/dom/QORDomCall.h"
#include "QORPlatform/dom/QORDomError.h"

#include <xercesc/dom/DOMImplementation.hpp>
#include <xercesc/util/PanicHandler.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <stdexcept>
#include <vector>

namespace {

/// Length of the well-formed character at the front of iText, 0 when there is none.
std::size_t WellFormedLength(std::string_view iText) {
    const auto lead = static_cast<unsigned char>(iText[0]);
    const std::size_t length = lead < 0x80U ? 1 : lead < 0xC2U ? 0 : lead < 0xE0U ? 2 : lead < 0xF0U ? 3 : 4;
    if (length == 0 || lead > 0xF4U || length > iText.size()) {
        return 0;
    }
    for (std::size_t i = 1; i < length; ++i) {
        if ((static_cast<unsigned char>(iText[i]) & 0xC0U) != 0x80U) {
            return 0;
        }
    }
    const auto second = static_cast<unsigned char>(length > 1 ? iText[1] : 0);
    const bool overlongOrOutside = (lead == 0xE0U && second < 0xA0U) || (lead == 0xEDU && second > 0x9FU) ||
                                   (lead == 0xF0U && second < 0x90U) || (lead == 0xF4U && second > 0x8FU);
    return overlongOrOutside ? 0 : length;
}

std::string Repaired(std::string_view iText) {
    std::string repaired;
    while (!iText.empty()) {
        const std::size_t length = WellFormedLength(iText);
        repaired += length == 0 ? std::string_view("\xEF\xBF\xBD") : iText.substr(0, length);
        iText.remove_prefix(length == 0 ? 1 : length);
    }
    return repaired;
}

bool IsFirstHalf(XMLCh iUnit) {
    return iUnit >= 0xD800U && iUnit < 0xDC00U;
}

bool IsSecondHalf(XMLCh iUnit) {
    return iUnit >= 0xDC00U && iUnit < 0xE000U;
}

/// Puts U+FFFD in the place of each half of a surrogate pair that stands without the other.
void ReplaceLoneHalves(std::u16string& ioWide) {
    for (std::size_t i = 0; i < ioWide.size(); ++i) {
        if (IsFirstHalf(ioWide[i]) && i + 1 < ioWide.size() && IsSecondHalf(ioWide[i + 1])) {
            ++i;
        } else if (IsFirstHalf(ioWide[i]) || IsSecondHalf(ioWide[i])) {
            ioWide[i] = u'\uFFFD';
        }
    }
}

} // namespace

std::shared_ptr<QORXmlRuntime> QORXmlRuntime::Get() {
    // Held by itself: the library's end needs memory, so it mustn't come where there is none.
    static const auto platform = std::make_shared<Platform>();
    static const auto runtime = std::make_shared<QORXmlRuntime>(platform);
    return runtime;
}

namespace {

/// In the place of the library's own, which ends the process.
class PanicHandler : public xercesc::PanicHandler {
public:
    void panic(const PanicReasons iReason) override { throw QORDomError(getPanicReasonString(iReason)); }
};

} // namespace

QORXmlRuntime::Platform::Platform() {
    static PanicHandler panicHandler;
    static bool isBroken = false; // a start that failed halfway can neither be undone nor be tried again
    if (isBroken) {
        throw QORDomError("the XML library couldn't start in this process");
    }
    isBroken = true;
    QORDomCall(
        [] { xercesc::XMLPlatformUtils::Initialize(xercesc::XMLUni::fgXercescDefaultLocale, nullptr, &panicHandler); });
    isBroken = false;
}

QORXmlRuntime::Platform::~Platform() {
    xercesc::XMLPlatformUtils::Terminate();
}

QORXmlRuntime::QORXmlRuntime(std::shared_ptr<Platform> iPlatform) : _platform(std::move(iPlatform)) {
    xercesc::XMLTransService::Codes result{};
    QORDomCall(
        [&] { _utf8.reset(xercesc::XMLPlatformUtils::fgTransService->makeNewTranscoderFor("UTF-8", result, 4096)); });
    if (!_utf8) {
        throw std::runtime_error("the XML library can't transcode UTF-8");
    }
}

std::u16string QORXmlRuntime::Widen(std::string_view iNarrow) {
    std::u16string wide;
    if (!TryWiden(iNarrow, wide)) {
        TryWiden(Repaired(iNarrow), wide);
    }
    return wide;
}

bool QORXmlRuntime::TryWiden(std::string_view iNarrow, std::u16string& oWide) {
    oWide.resize(iNarrow.size());
    std::vector<unsigned char> sizes(iNarrow.size());
    const auto* const bytes = reinterpret_cast<const XMLByte*>(iNarrow.data());
    std::size_t done = 0;
    std::size_t filled = 0;
    try {
        while (done < iNarrow.size()) {
            XMLSize_t eaten = 0;
            filled += _utf8->transcodeFrom(bytes + done, iNarrow.size() - done, oWide.data() + filled,
                                           oWide.size() - filled, eaten, sizes.data());
            if (eaten == 0) {
                return false;
            }
            done += eaten;
        }
    } catch (const xercesc::XMLException&) {
        return false;
    }
    oWide.resize(filled);
    return true;
}

char* QORXmlRuntime::Narrow(const XMLCh* iWide) {
    std::u16string wide(iWide);
    ReplaceLoneHalves(wide);
    const XMLSize_t room = 3 * wide.size() + 1;
    auto* const narrow =
        static_cast<char*>(QORDomCall([room] { return xercesc::XMLPlatformUtils::fgMemoryManager->allocate(room); }));
    XMLSize_t done = 0;
    XMLSize_t filled = 0;
    while (done < wide.size()) {
        XMLSize_t eaten = 0;
        filled +=
            _utf8->transcodeTo(wide.data() + done, wide.size() - done, reinterpret_cast<XMLByte*>(narrow) + filled,
                               room - 1 - filled, eaten, xercesc::XMLTranscoder::UnRep_RepChar);
        done += eaten;
    }
    narrow[filled] = '\0';
    return narrow;
}

QORDomState::QORDomState()
    : _runtime(QORXmlRuntime::Get()),
      _document(
          QORDomCall([this] { return xercesc::DOMImplementation::getImplementation()->createDocument(&_memory); })) {}

QORDomState::~QORDomState() {
    _document->release();
}

void QORDomState::Release() {
    if (--_references == 0) {
        delete this;
    }
}
