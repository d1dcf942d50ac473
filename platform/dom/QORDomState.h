#pragma once

#include "QORPlatform/dom/QORDomMemory.h"
#include "QORPlatform/framework/QORObjectCounts.h"

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/util/TransService.hpp>

#include <memory>
#include <string>
#include <string_view>

/// The XML library's run-time: initialised with the first owner, terminated with the last. The process keeps one owner,
/// and every document one more, so that no handle outlives what it needs, static ones included.
class QORXmlRuntime {
public:
    /// Initialised while this lives. When that fails, it fails from then on.
    struct Platform {
        Platform();
        ~Platform();
        Platform(const Platform&) = delete;
        Platform& operator=(const Platform&) = delete;
    };

    static std::shared_ptr<QORXmlRuntime> Get();

    explicit QORXmlRuntime(std::shared_ptr<Platform> iPlatform);
    QORXmlRuntime(const QORXmlRuntime&) = delete;
    QORXmlRuntime& operator=(const QORXmlRuntime&) = delete;

    /// UTF-8 into UTF-16. What is no UTF-8 becomes U+FFFD.
    std::u16string Widen(std::string_view iNarrow);

    /// UTF-16 up to the terminating zero into UTF-8, in memory that XMLString::release frees. Half a surrogate pair
    /// becomes U+FFFD.
    char* Narrow(const XMLCh* iWide);

private:
    bool TryWiden(std::string_view iNarrow, std::u16string& oWide);

    std::shared_ptr<Platform> _platform;
    std::unique_ptr<xercesc::XMLTranscoder> _utf8;
};

/// What all handles on one document share: the document itself, which ends with the last of them.
class QORDomState : private QORCounted<QORDomState> {
public:
    static constexpr std::string_view kCountName = "DOM_Document";

    /// A new empty document, with one reference.
    QORDomState();
    ~QORDomState();
    QORDomState(const QORDomState&) = delete;
    QORDomState& operator=(const QORDomState&) = delete;

    void AddRef() { ++_references; }
    void Release();

    xercesc::DOMDocument& GetDocument() const { return *_document; }

private:
    friend class QORCounted<QORDomState>;

    std::shared_ptr<QORXmlRuntime> _runtime;
    QORDomMemory _memory; // ends after the document
    xercesc::DOMDocument* _document;
    int _references = 1;
};
