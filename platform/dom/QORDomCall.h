#pragma once

/// The border to the XML library: every call into it that may raise goes through QORDomCall.

/// Raises, in the place of the exception that is being handled, std::bad_alloc or QORDomError when it is one of the XML
/// library's, else the same again.
[[noreturn]] void QORRaiseAsOurs();

/// Gives what iCall gives.
template <class Call>
decltype(auto) QORDomCall(Call&& iCall) {
    try {
        return iCall();
    } catch (...) {
        QORRaiseAsOurs();
    }
}
