!FILE_FORMAT=11.12
!MEMBERS=Custom1
[None];N;N;N;;;;;DefaultParent=#root
A;X;N;N;;;;;;;;;;;;;DefaultParent=NOWHERE;English=A
!HIERARCHIES=Custom1
;A;1
A;B;x
A;B;1
B;C;1
!UNKNOWN=section
whatever
!hierarchies = custom1
C;A;1
