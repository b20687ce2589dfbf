// A modem on a serial port, for a test that plays the program in its window. It runs until it is
// ended: played-modem PORT HEARD SILENCE HOLD. PORT is the link by which the program finds it,
// HEARD takes every byte that it hears. While there is a file of the name SILENCE, it answers to
// nothing, and while there is one of the name HOLD, no number is through.

#include "support/PlayedModem.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <thread>

using namespace std::chrono_literals;

namespace {

void KeepWriting(const PlayedModem& modem, const char* heardFile) {
    std::ofstream file(heardFile, std::ios::binary);
    for (qsizetype written = 0;; std::this_thread::sleep_for(20ms)) {
        const QByteArray heard = modem.Heard();
        file.write(heard.constData() + written, heard.size() - written).flush();
        written = heard.size();
    }
}

} // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 5) {
        std::fprintf(stderr, "played-modem PORT HEARD SILENCE HOLD\n");
        return EXIT_FAILURE;
    }
    const std::filesystem::path silence = arguments[3];
    const std::filesystem::path hold = arguments[4];
    const PlayedModem modem([&silence, &hold](const QByteArray& command) {
        if (std::filesystem::exists(silence))
            return PlayedModem::Silence(command);
        while (command.startsWith("ATD") && std::filesystem::exists(hold))
            std::this_thread::sleep_for(20ms);
        return PlayedModem::Ok(command);
    });
    std::filesystem::create_symlink(modem.Device().toStdString(), arguments[1]);
    KeepWriting(modem, arguments[2]);
}
