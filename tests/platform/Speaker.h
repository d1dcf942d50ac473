#pragma once

#include "QORPlatform/framework/QORTie.h"

#include <string>
#include <string_view>

/// Interface to speak through: one per name, all with the same operation.
template <const char* Name>
class Speaker : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID(std::string_view(Name)); }
    virtual std::string speak() = 0;
};

/// Calls speak of its object with the name of the interface.
template <const char* Name, class Impl>
class SpeakerTie : public QORTie<Speaker<Name>, Impl> {
public:
    using QORTie<Speaker<Name>, Impl>::QORTie;
    std::string speak() override { return this->Target()->speak(Name); }
};

inline constexpr char kTestLoud[] = "TestLoud";
inline constexpr char kTestSoft[] = "TestSoft";
inline constexpr char kTestMissing[] = "TestMissing";
using Loud = Speaker<kTestLoud>;
using Soft = Speaker<kTestSoft>;
using Missing = Speaker<kTestMissing>;
