import Kiv.Controls
import Kiv.Scene

// How a figure changed: an arrow for a signed change, a colour for good and bad news.
Chip {
    required property kpiCard card

    text: card.delta
    tone: card.tone === Scene.Tone.Good ? Chip.Good : card.tone === Scene.Tone.Bad ? Chip.Bad : Chip.Neutral
    iconName: /^\+/.test(text) ? "arrup" : /^[−-]/.test(text) ? "arrdn" : ""
}
