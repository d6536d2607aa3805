#!/usr/bin/env python3
"""Makes glass.wav, the sound of a finished countdown: a few inharmonic partials that ring out, struck twice.

Run it in this folder after changing a number; the result is committed."""
import math
import struct
import wave

RATE = 22050
SECONDS = 1.4
# Frequency in Hz, loudness, seconds until it has faded to a third.
PARTIALS = [(1318.5, 0.50, 0.42), (2637.0, 0.20, 0.24), (3711.0, 0.16, 0.16), (5230.0, 0.08, 0.09)]
STRIKES = [(0.0, 1.0), (0.18, 0.55)]


def sample(time: float) -> float:
    total = 0.0
    for start, force in STRIKES:
        age = time - start
        if age < 0:
            continue
        attack = min(age / 0.003, 1.0)
        for frequency, loudness, decay in PARTIALS:
            total += force * attack * loudness * math.exp(-age / decay) * math.sin(2 * math.pi * frequency * age)
    return total * min((SECONDS - time) / 0.2, 1.0)


samples = [sample(i / RATE) for i in range(int(RATE * SECONDS))]
peak = max(abs(value) for value in samples)
with wave.open("glass.wav", "wb") as output:
    output.setnchannels(1)
    output.setsampwidth(2)
    output.setframerate(RATE)
    output.writeframes(b"".join(struct.pack("<h", round(value / peak * 0.7 * 32767)) for value in samples))
