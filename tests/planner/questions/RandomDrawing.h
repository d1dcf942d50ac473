#pragma once

#include <random>
#include <string>

namespace plandrawing {

/// Drawings of small plans: forks, joins and loops, nesting, stations, structures, fasteners.
class RandomDrawing {
public:
    explicit RandomDrawing(unsigned seed) : random_(seed) {}

    std::string make() {
        std::string text = "S0: +A[P Q] -A +B(P U) -B .P .Q .U | S1";
        for (int i = 2; i < 8; ++i) {
            text += (below(6) == 0 ? ", " : " | ") + step("S" + std::to_string(i), 0);
        }
        text += " | S8 ;";
        for (int i = 0; i < 4; ++i) {
            const unsigned from = below(7);
            const unsigned to = below(8) == 0 ? below(9) : from + 1 + below(8 - from);
            text += " S" + std::to_string(from) + ">S" + std::to_string(to);
        }
        return text;
    }

private:
    unsigned below(unsigned limit) { return static_cast<unsigned>(random_() % limit); }

    std::string step(const std::string& name, int depth) {
        std::string text = name + (below(6) == 0 ? "@station" : below(6) == 0 ? "@loading" : "") + ":";
        for (unsigned i = below(4); i > 0; --i) {
            constexpr const char* kRelations = "++==--->*";
            const char relation = kRelations[below(9)];
            text += ' ' + std::string(1, relation) + (below(4) == 0 ? "v<P<U" : std::string(1, "PQUABT"[below(6)]));
        }
        if (depth < 2 && below(4) == 0) {
            text += " { " + step(name + "a", depth + 1) + (below(3) == 0 ? ", " : " | ") + step(name + "b", depth + 1) +
                    " }";
        }
        return text;
    }

    std::mt19937 random_;
};

} // namespace plandrawing
