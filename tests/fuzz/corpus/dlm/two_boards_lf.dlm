[Document]
Headline=
From board=1
To board=2
Duplicates 01=0
Board 01=blblblblblblblblblblblblbl015
Board 02=fafafafafafafafafafafafafa005
Board 03=aaaaaabffffffkkkkkklpppppp013
