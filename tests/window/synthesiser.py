"""Stands in for Speech Dispatcher, the voice of screen readers: speaks its protocol on a socket, and
writes down what a person would hear."""
import html
import re
import socketserver
import threading

# Of what a reader asks for; to all else it gets the same answer.
ANSWERS = {("LIST", "SYNTHESIS_VOICES"): ["Recorder\ten\tnone"], ("LIST", "OUTPUT_MODULES"): ["recorder"],
           ("LIST", "VOICES"): ["MALE1"], ("GET", "LANGUAGE"): ["en"], ("GET", "OUTPUT_MODULE"): ["recorder"],
           ("GET", "VOICE_TYPE"): ["MALE1"], ("GET",): ["0"], ("HISTORY",): ["1"]}


class Synthesiser(socketserver.ThreadingUnixStreamServer):
    daemon_threads = True

    def __init__(self, path):
        super().__init__(path, Reader)
        self.utterances = []  # since the reader was last silenced: the first is being said
        self.acts = 0  # of the reader
        threading.Thread(target=self.serve_forever, daemon=True).start()

    def say(self, utterance):
        self.utterances = self.utterances + [utterance]
        self.acts += 1

    def be_silent(self):
        self.utterances = []
        self.acts += 1


class Reader(socketserver.StreamRequestHandler):
    def handle(self):
        for line in self.rfile:
            words = line.decode().split()
            if words:
                self.obey(words)

    def obey(self, words):
        command = words[0].upper()
        if command == "SPEAK":
            self.answer("230 OK RECEIVING DATA")
            self.server.say(self.spoken())
            self.answer("225-1", "225 OK MESSAGE QUEUED")
        elif command in ("CHAR", "KEY", "SOUND_ICON"):
            self.server.say(words[1])
            self.answer("225-1", "225 OK MESSAGE QUEUED")
        elif command in ("STOP", "CANCEL"):
            self.server.be_silent()
            self.answer("210 OK STOPPED")
        else:
            given = ANSWERS.get((command, *words[1:2])) or ANSWERS.get((command,), [])
            self.answer(*[f"251-{line}" for line in given], "251 OK")

    def spoken(self):
        lines = iter(self.rfile.readline, b".\r\n")
        text = b"".join(line[1:] if line.startswith(b".") else line for line in lines).decode()
        return html.unescape(re.sub("<[^>]*>", "", text)).strip()

    def answer(self, *lines):
        self.wfile.write("".join(line + "\r\n" for line in lines).encode())
