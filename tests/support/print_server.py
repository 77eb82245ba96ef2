#!/usr/bin/env python3
"""A print server of one queue for the tests, at a socket in a folder of its own.

usage: print_server.py FOLDER

It listens at FOLDER/socket and speaks as much of the Internet Printing Protocol (RFC 8010, RFC 8011) as a
desktop's print dialog needs. A document that it takes lies in FOLDER/document-N.pdf. As long as there is a file
FOLDER/refuse-create or FOLDER/refuse-send, jobs or their documents get the status whose number the file holds.
The server ends when its standard input does.
"""
import http.server
import pathlib
import socketserver
import struct
import sys
import threading

QUEUE = "Study"
ADDRESS = "ipp://localhost/printers/" + QUEUE
OPERATION, JOB, END, PRINTER = 1, 2, 3, 4
INTEGER, ENUM, TEXT, NAME, KEYWORD, URI, CHARSET, LANGUAGE, MEDIA_TYPE, BOOLEAN = (
    0x21, 0x23, 0x41, 0x42, 0x44, 0x45, 0x47, 0x48, 0x49, 0x22)
CREATE_JOB, SEND_DOCUMENT, GET_PRINTER_ATTRIBUTES, GET_DEFAULT, GET_PRINTERS = 0x05, 0x06, 0x0B, 0x4001, 0x4002

folder = pathlib.Path(sys.argv[1])


def attribute(tag, name, value):
    data = struct.pack(">i", value) if tag in (INTEGER, ENUM) else value if isinstance(value, bytes) else value.encode()
    return struct.pack(">BH", tag, len(name)) + name.encode() + struct.pack(">H", len(data)) + data


def queue():
    return bytes([PRINTER]) + b"".join([
        attribute(NAME, "printer-name", QUEUE),
        attribute(URI, "printer-uri-supported", ADDRESS),
        attribute(TEXT, "printer-info", "The printer in the study"),
        attribute(TEXT, "printer-make-and-model", "Test Printer"),
        attribute(ENUM, "printer-state", 3),
        attribute(ENUM, "printer-type", 0),
        attribute(BOOLEAN, "printer-is-accepting-jobs", b"\1"),
        attribute(KEYWORD, "printer-state-reasons", "none"),
        attribute(MEDIA_TYPE, "document-format-supported", "application/pdf"),
        attribute(KEYWORD, "media-default", "iso_a4_210x297mm"),
        attribute(KEYWORD, "media-supported", "iso_a4_210x297mm"),
    ])


def job():
    return bytes([JOB]) + attribute(INTEGER, "job-id", 1) + attribute(URI, "job-uri", ADDRESS + "/1")


def refusal(stage):
    file = folder / ("refuse-" + stage)
    return int(file.read_text()) if file.exists() else 0


def document_of(request):
    """What follows the attributes of a request."""
    at = 8
    while request[at] != END:
        if request[at] < 0x10:  # a group begins
            at += 1
            continue
        for _ in ("name", "value"):
            length, = struct.unpack_from(">H", request, at + 1)
            at += 2 + length
        at += 1
    return request[at + 1:]


def answer(request):
    operation, number = struct.unpack_from(">HI", request, 2)
    status, groups = 0, b""
    if operation in (GET_PRINTERS, GET_DEFAULT, GET_PRINTER_ATTRIBUTES):
        groups = queue()
    elif operation == CREATE_JOB:
        status = refusal("create")
        groups = b"" if status else job()
    elif operation == SEND_DOCUMENT:
        status = refusal("send")
        groups = b"" if status else job()
        if not status:
            name = "document-%d.pdf" % (len(list(folder.glob("document-*"))) + 1)
            (folder / name).write_bytes(document_of(request))
    head = struct.pack(">BBHIB", 2, 0, status, number, OPERATION)
    head += attribute(CHARSET, "attributes-charset", "utf-8")
    head += attribute(LANGUAGE, "attributes-natural-language", "en")
    return head + groups + bytes([END])


class Handler(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"

    def log_message(self, *_):
        pass

    def body(self):
        if self.headers.get("Transfer-Encoding", "").lower() != "chunked":
            return self.rfile.read(int(self.headers.get("Content-Length", 0)))
        data = b""
        while True:
            size = int(self.rfile.readline().split(b";")[0] or b"0", 16)
            data += self.rfile.read(size)
            self.rfile.readline()
            if size == 0:
                return data

    def reply(self, status, data):
        self.send_response(status)
        self.send_header("Content-Type", "application/ipp")
        self.send_header("Content-Length", str(len(data)))
        self.end_headers()
        self.wfile.write(data)

    def do_POST(self):
        self.reply(200, answer(self.body()))

    def do_GET(self):  # a queue without a driver
        self.reply(404, b"")


class Server(socketserver.ThreadingMixIn, socketserver.UnixStreamServer):
    daemon_threads = True
    block_on_close = False


with Server(str(folder / "socket"), Handler) as server:
    threading.Thread(target=server.serve_forever, daemon=True).start()
    print("ready", flush=True)
    sys.stdin.read()
