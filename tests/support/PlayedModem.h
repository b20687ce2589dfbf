#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

/// A modem played on a pseudo-terminal, by a thread of its own. What it says and nobody takes is
/// lost, as on a line.
class PlayedModem {
public:
    /// What it says after a pause.
    struct Piece {
        std::chrono::milliseconds pause;
        QByteArray bytes;
    };
    /// The answer to a command, which is given without its carriage return.
    using Answers = std::function<std::vector<Piece>(const QByteArray& command)>;

    /// Every command is said back, with OK behind it.
    static std::vector<Piece> Ok(const QByteArray& command);
    static std::vector<Piece> Silence(const QByteArray& command);

    explicit PlayedModem(const Answers& answers = Ok);
    ~PlayedModem();
    PlayedModem(const PlayedModem&) = delete;
    PlayedModem& operator=(const PlayedModem&) = delete;

    /// The device that a program opens.
    const QString& Device() const { return device; }
    void SetAnswers(const Answers& answers);
    /// Every byte so far.
    QByteArray Heard() const;
    /// Without having been asked.
    void Say(const QByteArray& bytes) const;
    /// The device goes away, as when a plug is pulled.
    void Vanish();

private:
    void Run();
    void Hear(const QByteArray& bytes);
    bool Answer(const QByteArray& command);
    bool IsStoppedWithin(std::chrono::milliseconds time) const;

    mutable std::mutex guard;
    Answers answersOf;
    QByteArray heard;
    QByteArray unfinished;
    int line = -1;
    /// Kept open, for the line not to hang up when the program closes it.
    int otherEnd = -1;
    int stop[2] = {-1, -1};
    QString device;
    std::thread player;
};
