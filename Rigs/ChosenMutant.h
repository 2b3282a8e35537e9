#pragma once

#include <cstddef>
#include <cstdlib>
#include <fcntl.h>
#include <sstream>
#include <sys/mman.h>
#include <unistd.h>

/// What `mutants` puts in front of each check of the sources that it copies. The environment says which mutants are alive
/// (KARVELLO_MUTANTS, numbers between spaces), and where to note which ones a program met (KARVELLO_MUTANTS_MET, a file
/// with one byte for each).
class ChosenMutants {
public:
    static constexpr std::size_t kMaximumCount = 8192;

    ChosenMutants()
    {
        if (const char* const alive = std::getenv("KARVELLO_MUTANTS")) {
            std::istringstream numbers(alive);
            for (std::size_t number = 0; numbers >> number && number < kMaximumCount;) {
                m_isAlive[number] = true;
            }
        }
        if (const char* const met = std::getenv("KARVELLO_MUTANTS_MET")) {
            // Shared with the file, so that processes that fork, or die, are noted too.
            const int file = open(met, O_RDWR | O_CLOEXEC);
            void* const mapped = mmap(nullptr, kMaximumCount, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
            close(file);
            if (mapped == MAP_FAILED) {
                std::abort();
            }
            m_met = static_cast<unsigned char*>(mapped);
        }
    }

    [[nodiscard]] bool isAlive(int number) const
    {
        if (m_met != nullptr) {
            m_met[number] = 1;
        }
        return m_isAlive[number];
    }

private:
    bool m_isAlive[kMaximumCount] = {};
    unsigned char* m_met = nullptr;
};

inline const ChosenMutants chosenMutants;

constexpr bool karvelloMutant(int number)
{
    if consteval {
        return false;
    } else {
        return chosenMutants.isAlive(number);
    }
}
