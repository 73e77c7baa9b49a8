[DOCUMENT]
TO BOARD=99
board5=aaaaaabffffffkkkkkklppppp
Board 6=aqaaaabffffffkkkkkklpppppp
[STARTUP]
